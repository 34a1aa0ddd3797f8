// SPDX-License-Identifier: MIT
#include <cstdio>

#include "savegame/format.h"
#include "tests/rules/small_worlds.h"

// Writes the saved game that play_with_orca.py wins: two humans, a computer, and an army that nobody
// withstands.
int main() {
    const std::string bytes = vorlund::WriteGame(
        vorlund::NewGame(3, "7 Anna 30000/0F; 8 Ben 1/0; 6 Cleo 1/0; Cleo IsComputer 1; Anna Money 30000"));
    std::fwrite(bytes.data(), 1, bytes.size(), stdout);
}
