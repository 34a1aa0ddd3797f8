#include <gtest/gtest.h>

#include "actions/battle.h"
#include "actions/sell.h"
#include "computer/computer_turn.h"
#include "setup/selection.h"
#include "state/consistent.h"
#include "tests/engine/checks.h"
#include "tests/engine/table.h"
#include "tests/rules/small_worlds.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

constexpr int TurnsAtMost = 3000;

/// Everybody settled, computers from index `humans` on, and the first human's turn begun.
void Settle(Table& table, int players, int humans) {
    table.Game = NewGame(players);
    for (int p = 0; p < players; ++p) {
        table.Game.PlayerAt(p).FirstTurn = true;
        table.Game.PlayerAt(p).IsComputer = p >= humans;
    }
    Selection selection(table.Game, table.Chance);
    selection.Open();
    for (int n = 5; selection.Entr(std::to_string(n)).What != Selection::Step::Kind::Ended; n += 9) {
    }
    table.Turn.OpenFirstTurn();
}

/// Attacks with everything but one troop wherever the enemy is weaker.
void AttackWhereStronger(Table& table) {
    GameState& game = table.Game;
    for (int from = 0; from < NumTerritories; ++from) {
        for (const int to : game.TerritoryAt(from).Neighbours) {
            const Territory& source = game.TerritoryAt(from);
            if (!CanReach(game, true, from, to) || source.Troops - 1 <= game.TerritoryAt(to).Troops) {
                continue;
            }
            const auto outcome = Attck(game, table.Chance, CanAttack(game),
                                       {std::to_string(from + 1), std::to_string(to + 1),
                                        std::to_string(source.Troops - 1), std::to_string(source.Tanks)});
            EXPECT_FALSE(std::holds_alternative<Refusal>(outcome));
            EXPECT_EQ(BrokenRecords(game), std::nullopt);
        }
    }
}

/// Plays by Continue and End Turn until the game is over; `onTurn` acts for living humans.
template <typename OnTurn>
void PlayOut(Table& table, OnTurn onTurn) {
    for (int turn = 0; turn < TurnsAtMost && !table.Game.GameOver; ++turn) {
        if (table.Turn.ReportClosed()) {
            ASSERT_EQ(BrokenRecords(table.Game), std::nullopt);
            continue;
        }
        ASSERT_TRUE(table.Seen.Commands && table.Seen.Commands->Has(Command::EndTurn));
        if (!table.Game.Current().IsDead) {
            onTurn(table);
        }
        table.Turn.EndTurn();
        ASSERT_EQ(BrokenRecords(table.Game), std::nullopt);
    }
    ASSERT_TRUE(table.Game.GameOver);
}

TEST(WholeGame, HumansAndComputersFightUntilOneHasWon) {
    for (std::uint32_t seed = 1; seed <= 20; ++seed) {
        SCOPED_TRACE(seed);
        Table table(seed);
        Settle(table, 2 + static_cast<int>(seed % 4), 1 + static_cast<int>(seed % 2));
        PlayOut(table, AttackWhereStronger);
        const Player& winner = table.Game.Current();
        EXPECT_FALSE(winner.IsDead);
        EXPECT_EQ(table.Seen.BoardTitle, "Vorlund - " + winner.Name + " wins");
        EXPECT_EQ(table.Seen.Announcements.size(), 1U);
        EXPECT_EQ(table.Seen.Commands, CommandSet::None());
        EXPECT_FALSE(table.Turn.ReportClosed());
        EXPECT_EQ(table.Seen.Commands, CommandSet::None());
    }
}

TEST(WholeGame, ComputersPlayOnByContinueWhenEveryHumanIsDead) {
    for (std::uint32_t seed = 1; seed <= 10; ++seed) {
        SCOPED_TRACE(seed);
        Table table(seed);
        Settle(table, 4, 1);
        PlayOut(table, [](Table& t) {
            if (!t.Game.Current().FirstTurn) {
                const std::string troops = std::to_string(t.Game.Territories[4].Troops);
                ASSERT_TRUE(std::holds_alternative<Report>(Sell(t.Game, {"5", troops, "", ""})));
                ASSERT_TRUE(t.Game.Current().IsDead);
            }
        });
        EXPECT_TRUE(table.Game.Players[0].IsDead);
        EXPECT_TRUE(table.Game.Current().IsComputer);
        EXPECT_TRUE(table.Seen.Announcements[0].ends_with(", wins the game!")) << table.Seen.Announcements[0];
        EXPECT_TRUE(table.Seen.Shown.Body.ends_with(" is now dead.\r"));
    }
}

TEST(WholeGame, NobodyWinsWhenTheSurvivorSellsOut) {
    Table table(1);
    table.Game = NewGame(2);
    Give(table.Game, 4, 0, 3);
    Give(table.Game, 3, 1, 0);
    AttackWhereStronger(table);
    ASSERT_TRUE(table.Game.Players[1].IsDead);
    ASSERT_TRUE(std::holds_alternative<Report>(Sell(table.Game, {"4", "2", "", ""})));
    ASSERT_TRUE(std::holds_alternative<NoSurvivor>(Sell(table.Game, {"5", "1", "", ""})));
    NobodyWins(table.Game, table.Seen);
    EXPECT_EQ(BrokenRecords(table.Game), std::nullopt);
    EXPECT_FALSE(table.Turn.ReportClosed());
    EXPECT_EQ(table.Seen.Commands, CommandSet::None());
    EXPECT_FALSE(table.Seen.GameOverShown);
}

}  // namespace
}  // namespace vorlund
