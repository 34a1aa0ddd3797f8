// SPDX-License-Identifier: MIT
#include "tests/fuzz/inputs.h"

#include <cmath>
#include <regex>
#include <sstream>

#include "savegame/format.h"
#include "state/consistent.h"
#include "state/typed_number.h"
#include "tests/engine/games.h"

namespace vorlund {
namespace {

constexpr int MaxLines = 545;  ///< of a game of five

/// Ends turns and closes reports, with a fixed seed so that a failure is repeatable.
std::string WrongWithTurns(const GameState& game) {
    RecordedGame played(1);
    played.Game = game;
    for (int step = 0; step < 20 && !played.Game.GameOver && Consistent(played.Game); ++step) {
        if (!played.Turn.ReportClosed()) {
            played.Turn.EndTurn();
        }
    }
    return Consistent(played.Game) ? "" : "the records disagree some turns later";
}

}  // namespace

std::string WrongWithGame(std::string_view bytes) {
    const auto result = ReadGame(FreshGame(), bytes);
    if (const auto* const bad = std::get_if<BadFile>(&result)) {
        const bool right = bad->Line >= 1 && bad->Line <= MaxLines;
        return right && !bad->What.empty() ? "" : "a refusal without a line or a reason";
    }
    const GameState& game = std::get<GameState>(result);
    if (!Consistent(game) || game.Current().IsDead || game.Current().IsComputer) {
        return "accepted although the records disagree";
    }
    return BrokenSaving(game) + WrongWithTurns(game);
}

std::string WrongWithNumber(std::string_view text) {
    static const std::regex grammar(" *[+-]?(\\d+\\.?\\d*|\\.\\d+)([eE][+-]?\\d+)? *", std::regex::optimize);
    const std::optional<double> read = ReadNumber(text);
    if (!std::regex_match(text.begin(), text.end(), grammar)) {
        return read ? "a text that is no number was read as one" : "";
    }
    // Streams have the "C" locale until they are given another.
    std::istringstream stream{std::string(text)};
    double expected = 0;
    const bool fits = static_cast<bool>(stream >> expected);
    // Nothing is read from a number that is too large or subnormal.
    const bool right = read ? fits && *read == expected : !fits || !std::isnormal(expected);
    return right ? "" : "a number was read as another one, or not at all";
}

}  // namespace vorlund
