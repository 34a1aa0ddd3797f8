// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "computer/computer_turn.h"
#include "tests/engine/seeded_random.h"
#include "tests/rules/recorder.h"
#include "turn/turn_cycle.h"

namespace vorlund {

inline bool OneIn(int n, Random& hands) {
    return hands.Draw(n) == 0;
}

/// One of `list`, which is not empty.
template <class List>
auto Any(const List& list, Random& hands) {
    return list[static_cast<typename List::size_type>(hands.Draw(static_cast<int>(list.size())))];
}

/// A game with its chance and its screens, put together as the program does it.
struct Table {
    explicit Table(std::uint32_t seed) : Chance(seed) {}

    GameState Game;
    SeededRandom Chance;
    Recorder Seen;
    TurnCycle Turn{Game, Chance, Seen, [this] { ComputerTurn(Game, Chance, Seen); }};
};

/// The state as the title screen leaves it.
GameState FreshGame();

/// A new game with its names entered and every player settled, in which the starting player has the turn.
GameState RandomNewGame(Random& hands, Random& chance);

/// Some consistent position that a long game might reach, units and treasuries up to their limits included.
/// A living human has the turn.
GameState RandomPosition(Random& hands);

// What a player of random temper types. Most of it makes sense, some is no number, hard to bear or refused.

std::string NameEntry(Random& hands);

/// Troops, tanks or barrels: mostly between nothing and `limit`, often just that.
std::string QuantityEntry(int limit, Random& hands);

/// Two territories: mostly an own one, and a neighbour of it.
struct Route {
    std::string From;
    std::string To;
    Units Force;  ///< what stands at `From`, for the quantities
};
Route RandomRoute(const GameState& game, Random& hands);

// What must hold between any two actions. Each gives what is wrong; empty when nothing is.

/// The records agree, and the totals of every living human are the sums over that player's territories.
std::string BrokenRecords(const GameState& game);

/// `given` is one of the exact sets: all eight commands with Attack only after the first turn, End Turn alone
/// for the dead, or none.
std::string BrokenCommands(const GameState& game, CommandSet given);

/// A living human's game, saved, reads back as it was and gives the same bytes again.
std::string BrokenSaving(const GameState& game);

}  // namespace vorlund
