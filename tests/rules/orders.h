#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "state/consistent.h"
#include "tests/engine/said.h"
#include "tests/rules/scripted_random.h"
#include "tests/rules/small_worlds.h"

namespace vorlund {

/// Anna has the turn and holds number 7 (factory, 10 troops, 3 tanks) and its neighbour 8 (defense, 5
/// troops). Ben holds 9 (factory, 2 troops, 1 tank), another neighbour of 7, and 31; Cleo holds 20.
inline GameState Front() {
    GameState game = NewGame(3);
    Give(game, 6, 0, 10, 3);
    GiveFactory(game, 6);
    Give(game, 7, 0, 5);
    game.Territories[7].HasDefense = true;
    Give(game, 8, 1, 2, 1);
    GiveFactory(game, 8);
    Give(game, 30, 1, 4);
    Give(game, 19, 2, 1);
    game.Players[0].Money = 500;
    game.Players[0].Oil = 10;
    game.Players[0].HasNuke = true;
    return game;
}

using Setting = std::function<void(GameState&)>;

/// An order on the front: what is typed, what is said, and what changes, which is nothing when it is refused.
struct OrderRow {
    const char* what;
    const char* typed;  ///< with a comma between the fields
    std::string said;
    std::string changes = "";
    Setting setup = [](GameState&) {};
    std::vector<float> chance = {};
};

/// `order` takes the game, its chance and the row's entries.
template <typename Order>
void ExpectOrders(const std::vector<OrderRow>& rows, Order order) {
    for (const OrderRow& row : rows) {
        SCOPED_TRACE(row.what);
        GameState game = Front();
        row.setup(game);
        const GameState before = game;
        ScriptedRandom random(row.chance);
        std::vector<std::string> typed(1);
        for (const char* c = row.typed; *c != 0; ++c) {
            *c == ',' ? typed.emplace_back() : typed.back() += *c;
        }
        EXPECT_EQ(std::visit(Said{}, order(game, random, typed)), row.said);
        EXPECT_EQ(Changes(before, game), row.changes);
        EXPECT_EQ(game == before, row.changes.empty());
        EXPECT_TRUE(Consistent(game));
    }
}

inline Setting Anna(std::int16_t Player::*field, std::int16_t value) {
    return [=](GameState& game) { game.Players[0].*field = value; };
}

inline Setting Money(std::int16_t dollars) {
    return Anna(&Player::Money, dollars);
}

/// Makes these the units of territory index `t`; the owner's totals follow.
inline void Station(GameState& game, int t, int troops, int tanks = 0) {
    const Territory was = game.TerritoryAt(t);
    Give(game, t, was.Owner, troops, tanks);
    Add(game.PlayerAt(was.Owner).Troops, -was.Troops);
    Add(game.PlayerAt(was.Owner).Tanks, -was.Tanks);
}

/// Takes territory index `t` with all that stands there from its owner.
inline void Clear(GameState& game, int t) {
    Station(game, t, 0);
    Abandon(game, t);
}

}  // namespace vorlund
