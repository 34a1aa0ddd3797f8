// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <array>

#include "actions/battle.h"
#include "actions/buy.h"
#include "actions/sell.h"
#include "actions/status.h"
#include "actions/strike.h"
#include "actions/transport.h"
#include "actions/upgrade.h"
#include "computer/computer_turn.h"
#include "state/consistent.h"
#include "tests/rules/recorder.h"
#include "tests/rules/scripted_random.h"
#include "tests/rules/small_worlds.h"
#include "turn/turn_cycle.h"
#include "turn/upkeep.h"
#include "turn/victory.h"

namespace vorlund {

/// The outcome of an order as text: the message to the player, or a word in brackets.
struct OutcomeText {
    std::string operator()(const Refusal& refusal) const { return refusal.Message; }
    std::string operator()(const Report& r) const { return r.Title + "|" + r.Headline + "|" + r.Body; }
    std::string operator()(const Moved& moved) const { return moved.StatusLine; }
    std::string operator()(const Purchase& purchase) const { return purchase.Message; }
    std::string operator()(const Beep&) const { return "(beep)"; }
    std::string operator()(const Nothing&) const { return "(nothing)"; }
    std::string operator()(const NoSurvivor&) const { return "(nobody is left)"; }
};

/// All that dialogs show about the current player.
inline std::string Status(const GameState& game) {
    const StatusLines s = DescribeStatus(game);
    return s.Title + "|" + s.Name + "|" + s.Money + "|" + s.Oil + "|" + s.Troops + "|" + s.Tanks + "|" +
           s.Factories + "|" + s.Debt + "|" + s.Economy + "|" + s.Warfare + "|" + s.Nuclear + "|" +
           s.AttacksMoves + "|" + s.Upkeep + "|" + MoneyLine(game) + MovesLeftText(game) +
           AttacksLeftText(game) + BombText(game) + StatusOf(game, Track::Warfare);
}

/// `text` with its # signs replaced by the words of `figures`.
inline std::string With(const std::string& figures, std::string text) {
    std::istringstream all(figures);
    for (std::string figure; all >> figure;) {
        text.replace(text.find('#'), 1, figure);
    }
    return text;
}

/// A game on a recorder, played step by step.
struct Play {
    Play(int players, const std::string& world, const std::string& rolls)
        : Game(NewGame(players, world)), Chance(rolls) {}

    /// Takes `step` and expects this text to the player or these calls of the screens, and these changes.
    void Then(const std::string& step, const std::string& told, const std::string& changes = "") {
        SCOPED_TRACE(step);
        Seen.Calls.clear();
        const GameState before = Game;
        EXPECT_EQ(Take(step) + Seen.Calls, told);
        EXPECT_EQ(Changes(before, Game), changes);
        EXPECT_TRUE(Consistent(Game));
    }

    /// Takes an order with its entries, separated by commas, or a step of the turn.
    std::string Take(const std::string& step) {
        std::array<std::string, 5> typed;
        std::istringstream rest(step);
        for (std::string& entry : typed) {
            std::getline(rest, entry, ',');
        }
        const auto& [verb, first, second, third, fourth] = typed;
        const auto text = [](const auto& outcome) { return std::visit(OutcomeText{}, outcome); };
        return verb == "buy"       ? text(Buy(Game, {first, second, third, fourth}))
               : verb == "sell"    ? text(Sell(Game, {first, second, third, fourth}))
               : verb == "move"    ? text(Tran(Game, {first, second, third, fourth}))
               : verb == "attack"  ? text(Attck(Game, Chance, {first, second, third, fourth}))
               : verb == "strike"  ? text(Strike(Game, first))
               : verb == "factory" ? text(Fact(Game, first))
               : verb == "defense" ? text(Def(Game, first))
               : verb == "upgrade" ? text(RaiseLevel(Game, static_cast<Track>(std::stoi(first))))
               : verb == "upkeep"  ? OutcomeText{}(RunUpkeep(Game, Chance, Game.CurrentPlayer))
               : verb == "status"  ? Status(Game)
               : verb == "open"    ? (Turn.OpenFirstTurn(), "")
               : verb == "end"     ? (Turn.EndTurn(), "")
               : verb == "close"   ? (Turn.ReportClosed(), "")
                                   : (ComputerTurn(Game, Chance, Seen), "");
    }

    GameState Game;
    ScriptedRandom Chance;
    Recorder Seen;
    // A computer player's turn only shows a report here.
    TurnCycle Turn{Game, Chance, Seen, [this] {
                       Game.ComputerTurnEnded = true;
                       Seen.ShowReport({"", Game.Current().Name + " plays", ""}, Game.CurrentPlayer);
                   }};
};

/// Steps of Anna's and their expected result, which is the same for each step of a row.
struct Row {
    const char* steps;  ///< separated by bars
    std::string told;
    std::string changes = "";
    std::string otherwise = "";  ///< differences of the initial state
    std::string rolls = "";
};

inline void ExpectSteps(const std::string& world, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        std::istringstream steps(row.steps);
        for (std::string step; std::getline(steps, step, '|');) {
            SCOPED_TRACE(row.otherwise);
            Play play(3, row.otherwise + world + row.otherwise, row.rolls);
            play.Then(step, row.told, row.changes);
            EXPECT_EQ(play.Chance.Reseedings, step.starts_with("attack,") ? 1 : 0);
        }
    }
}

}  // namespace vorlund
