#pragma once

#include <cstdint>

#include "computer/computer_turn.h"
#include "state/game_state.h"
#include "tests/engine/seeded_random.h"
#include "tests/rules/recorder.h"
#include "turn/turn_cycle.h"

namespace vorlund {

/// A game with its chance and its screens, put together as the program does it.
struct Table {
    explicit Table(std::uint32_t seed) : Chance(seed) {}

    GameState Game;
    SeededRandom Chance;
    Recorder Seen;
    TurnCycle Turn{Game, Chance, Seen, [this] { ComputerTurn(Game, Chance, Seen); }};
};

}  // namespace vorlund
