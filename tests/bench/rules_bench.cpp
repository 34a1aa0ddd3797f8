#include <benchmark/benchmark.h>

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

}  // namespace
}  // namespace vorlund

BENCHMARK_MAIN();
