#pragma once

#include <gtest/gtest.h>

#include <array>

#include "actions/battle.h"
#include "actions/buy.h"
#include "actions/status.h"
#include "actions/strike.h"
#include "computer/computer_turn.h"
#include "state/consistent.h"
#include "tests/engine/said.h"
#include "tests/rules/recorder.h"
#include "tests/rules/scripted_random.h"
#include "tests/rules/small_worlds.h"
#include "turn/turn_cycle.h"
#include "turn/upkeep.h"
#include "turn/victory.h"

namespace vorlund {

/// A game that is played step by step.
struct Play {
    Play(int players, const std::string& world, const std::string& rolls)
        : Game(NewGame(players, world)), Chance(rolls) {}

    /// Takes a step: what the player is told or the screens show then, and what has changed.
    void Then(const std::string& step, const std::string& told, const std::string& changes = "") {
        SCOPED_TRACE(step);
        Seen.Calls.clear();
        const GameState before = Game;
        EXPECT_EQ(Take(step) + Seen.Calls, told);
        EXPECT_EQ(Changes(before, Game), changes);
        EXPECT_TRUE(Consistent(Game));
    }

    /// An order with a comma before each entry, or what happens between the orders.
    std::string Take(const std::string& step) {
        std::array<std::string, 5> typed;
        std::istringstream rest(step);
        for (std::string& entry : typed) {
            std::getline(rest, entry, ',');
        }
        const auto& [verb, first, second, third, fourth] = typed;
        const auto said = [](const auto& outcome) { return std::visit(Said{}, outcome); };
        return verb == "buy"      ? said(Buy(Game, {first, second, third, fourth}))
               : verb == "sell"   ? said(Sell(Game, {first, second, third, fourth}))
               : verb == "move"   ? said(Tran(Game, CanMove(Game), {first, second, third, fourth}))
               : verb == "attack" ? said(Attck(Game, Chance, CanAttack(Game), {first, second, third, fourth}))
               : verb == "strike" ? said(Strike(Game, Game.Current().HasNuke, first))
               : verb == "factory" ? said(Fact(Game, first))
               : verb == "defense" ? said(Def(Game, first))
               : verb == "upgrade" ? said(RaiseLevel(Game, static_cast<Track>(std::stoi(first))))
               : verb == "upkeep"  ? Said{}(RunUpkeep(Game, Chance, Game.CurrentPlayer))
               : verb == "open"    ? (Turn.OpenFirstTurn(), "")
               : verb == "end"     ? (Turn.EndTurn(), "")
               : verb == "close"   ? (Turn.ReportClosed(), "")
                                   : (ComputerTurn(Game, Chance, Seen), "");
    }

    GameState Game;
    ScriptedRandom Chance;
    Recorder Seen;
    // A computer player's turn is no more than a report here.
    TurnCycle Turn{Game, Chance, Seen, [this] {
                       Game.ComputerTurnEnded = true;
                       Seen.ShowReport({"", Game.Current().Name + " plays", ""}, Game.CurrentPlayer);
                   }};
};

}  // namespace vorlund
