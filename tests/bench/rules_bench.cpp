#include <benchmark/benchmark.h>

#include <array>
#include <cmath>

#include "actions/battle.h"
#include "computer/computer_turn.h"
#include "setup/selection.h"
#include "state/ownership.h"
#include "tests/engine/games.h"
#include "tests/engine/seeded_random.h"
#include "turn/turn_cycle.h"

namespace vorlund {
namespace {

class Blind final : public Screens {
    void RefreshMap() override {}
    void SetCommands(CommandSet) override {}
    void SetBoardTitle(const std::string&) override {}
    void ShowGameOver() override {}
    void CloseDialogs() override {}
    void ShowReport(const Report& report, std::optional<int>) override {
        benchmark::DoNotOptimize(report.Body.data());
    }
    void HideReport() override {}
    void CloseReport() override {}
    void Announce(const std::string&) override {}
};

/// One human, who has just died, and `computers` computer players, the first of which has the turn.
GameState ComputersAlone(int computers, Random& random) {
    GameState game = FreshGame();
    game.NumPlayers = static_cast<std::int16_t>(computers + 1);
    for (int p = 0; p < game.NumPlayers; ++p) {
        game.PlayerAt(p).Name = "Player";
        game.PlayerAt(p).IsComputer = p > 0;
    }
    Selection selection(game, random);
    selection.Open();
    selection.Entr("20");
    Abandon(game, 19);
    game.Territories[19].Troops = 0;
    game.Players[0].IsDead = true;
    game.DeadPlayers = 1;
    game.CurrentPlayer = 1;
    return game;
}

/// Whole games of computers from settlement to the win, one turn an iteration.
void ComputerTurns(benchmark::State& state) {
    SeededRandom random(1);
    Blind screens;
    const GameState start = ComputersAlone(static_cast<int>(state.range(0)), random);
    GameState game = start;
    TurnCycle cycle(game, random, screens, [&] { ComputerTurn(game, random, screens); });
    std::int64_t games = 1;
    for (auto _ : state) {
        if (game.GameOver) {
            game = start;
            ++games;
        }
        cycle.ReportClosed();
    }
    state.SetItemsProcessed(state.iterations());
    state.counters["turns_a_game"] = static_cast<double>(state.iterations()) / static_cast<double>(games);
}
BENCHMARK(ComputerTurns)->DenseRange(2, 4);

/// Rounds of battle at one difference of the odds; the share that the attacker wins against the exact one.
/// "sigmas" is how far apart they are in standard deviations: above 4 is a fault.
void BattleOdds(benchmark::State& state) {
    const int warDiff = static_cast<int>(state.range(0));
    SeededRandom random(static_cast<std::uint32_t>(warDiff + 100));
    GameState game = FreshGame();
    game.NumPlayers = 2;
    Claim(game, 0, 0);
    Claim(game, 1, 1);
    game.Players[0].WarfareLevel = warDiff < 0 ? static_cast<std::int16_t>(-warDiff) : std::int16_t{0};
    game.Players[1].WarfareLevel = warDiff > 3   ? std::int16_t{3}
                                   : warDiff > 0 ? static_cast<std::int16_t>(warDiff)
                                                 : std::int16_t{0};
    game.Territories[1].HasDefense = warDiff > 3;
    Battle battle = BeginBattle(game, 1, 1, 0);
    std::int64_t won = 0;
    for (auto _ : state) {
        game.Territories[1].Troops = 1;
        battle.Troops = 1;
        BattleRound(game, random, battle);
        won += battle.Troops;
    }
    const auto rounds = static_cast<double>(state.iterations());
    const double exact = 6.0 / (12 + warDiff);
    const double measured = static_cast<double>(won) / rounds;
    state.counters["exact"] = exact;
    state.counters["measured"] = measured;
    state.counters["sigmas"] = std::abs(measured - exact) / std::sqrt(exact * (1 - exact) / rounds);
    if (battle.WarDiff != warDiff) {
        state.SkipWithError("the battle has other odds");
    }
}
BENCHMARK(BattleOdds)->Arg(-3)->Arg(0)->Arg(5);

}  // namespace
}  // namespace vorlund

BENCHMARK_MAIN();
