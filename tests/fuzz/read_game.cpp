#include "tests/fuzz/read_game.h"

#include <variant>

#include "computer/computer_turn.h"
#include "savegame/format.h"
#include "state/consistent.h"
#include "state/random.h"
#include "state/world.h"
#include "tests/rules/recorder.h"
#include "turn/turn_cycle.h"

namespace vorlund {
namespace {

GameState Fresh() {
    GameState game;
    InitWorld(game);
    return game;
}

/// A game in which a living human has the turn must be given back by its own file.
bool ComesBack(const GameState& game) {
    const auto again = ReadGame(Fresh(), WriteGame(game));
    GameState expected = game;
    expected.StartingPlayer = 0;
    expected.ComputerTurnEnded = false;
    return std::holds_alternative<GameState>(again) && std::get<GameState>(again) == expected;
}

/// Always the same chance, so that an input found once shows its fault again.
class FixedRandom final : public Random {
    float Uniform() override { return random_.Uniform(); }
    void Reseed() override {}

    ClockRandom random_{1};
};

std::string WrongWithTurns(GameState& game) {
    Recorder screens;
    FixedRandom random;
    TurnCycle turns(game, random, screens, [&] { ComputerTurn(game, random, screens); });
    for (int turn = 0; turn < 3 && !game.GameOver; ++turn) {
        turns.EndTurn();
        // At most four computer players stand between two humans; more closings lead nowhere.
        int closings = 0;
        while (turns.ReportClosed()) {
            if (++closings > MaxPlayers && !game.Current().IsComputer) {
                return "closing the report never gives the board back";
            }
            if (closings > 1000) {
                return "";  // computer players among themselves
            }
        }
        if (!Consistent(game)) {
            return "the records disagree after an end of turn";
        }
        if (!game.GameOver && !game.Current().IsDead && !ComesBack(game)) {
            return "the game cannot be saved any more after an end of turn";
        }
    }
    return "";
}

}  // namespace

std::string WrongWithGame(std::string_view bytes) {
    auto result = ReadGame(Fresh(), bytes);
    if (const auto* const bad = std::get_if<BadFile>(&result)) {
        return bad->Line >= 1 && !bad->What.empty() ? "" : "a refusal without a line or a reason";
    }
    GameState game = std::get<GameState>(result);
    if (!Consistent(game)) {
        return "accepted although the records disagree";
    }
    if (!ComesBack(game)) {
        return "saved and loaded again, the game is another one";
    }
    return WrongWithTurns(game);
}

}  // namespace vorlund
