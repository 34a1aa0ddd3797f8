// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "computer/computer_turn.h"
#include "tests/engine/seeded_random.h"
#include "tests/rules/recorder.h"
#include "turn/turn_cycle.h"

namespace vorlund {

inline bool OneIn(int n, Random& random) {
    return random.Draw(n) == 0;
}

/// A random element of `list`, which is not empty.
template <class List>
auto OneOf(const List& list, Random& random) {
    return list[static_cast<typename List::size_type>(random.Draw(static_cast<int>(list.size())))];
}

/// A game whose turns drive a recorder instead of windows.
struct RecordedGame {
    explicit RecordedGame(std::uint32_t seed) : Chance(seed) {}

    GameState Game;
    SeededRandom Chance;
    Recorder Seen;
    TurnCycle Turn{Game, Chance, Seen, [this] { ComputerTurn(Game, Chance, Seen); }};
};

/// The state at the title screen.
GameState FreshGame();

/// A new game after setup, in which the starting player has the turn.
GameState RandomNewGame(Random& random, Random& chance);

/// A consistent position of a long game, with units and treasuries up to their limits. A living human has the
/// turn.
GameState RandomPosition(Random& random);

// Random entries: most are valid, some are refused or no numbers.

std::string NameEntry(Random& random);

/// A number of troops, tanks or barrels: mostly 0 to `limit`, often `limit`.
std::string QuantityEntry(int limit, Random& random);

/// Two territories: mostly one of the current player's and its neighbour.
struct Route {
    std::string From;
    std::string To;
    Units Force;  ///< stationed in `From`, as a limit for quantities
};
Route RandomRoute(const GameState& game, Random& random);

// Invariants between two actions. Each function returns what is wrong, or an empty text.

/// The game is consistent, and living players' totals are the sums over their territories; of computer
/// players only the factories.
std::string BrokenRecords(const GameState& game);

/// `enabled` is all commands (Attack only after the first turn), End Turn alone for the dead, or none.
std::string BrokenCommands(const GameState& game, CommandSet enabled);

/// The game, in which a living human has the turn, is the same after saving and loading, and gives the same
/// file again.
std::string BrokenSaving(const GameState& game);

}  // namespace vorlund
