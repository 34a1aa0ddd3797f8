// SPDX-License-Identifier: MIT
#include "tests/fuzz/inputs.h"

#include <cmath>
#include <regex>

#include "savegame/format.h"
#include "state/consistent.h"
#include "state/typed_number.h"
#include "tests/engine/games.h"

namespace vorlund {
namespace {

constexpr int LinesOfFivePlayers = 545;  ///< no saved game is longer

/// Ends turns and closes reports; always with the same chance, so that an input shows its fault again.
std::string WrongWithTurns(const GameState& game) {
    Table table(1);
    table.Game = game;
    for (int step = 0; step < 20 && !table.Game.GameOver && Consistent(table.Game); ++step) {
        if (!table.Turn.ReportClosed()) {
            table.Turn.EndTurn();
        }
    }
    return Consistent(table.Game) ? "" : "the records disagree some turns later";
}

}  // namespace

std::string WrongWithGame(std::string_view bytes) {
    const auto result = ReadGame(FreshGame(), bytes);
    if (const auto* const bad = std::get_if<BadFile>(&result)) {
        const bool right = bad->Line >= 1 && bad->Line <= LinesOfFivePlayers;
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
    // In the "C" locale strtod reads the same digits, whatever locale the tests run under.
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    const double expected = strtod_l(std::string(text).c_str(), nullptr, plain);
    // Out of range is a reason not to read: too large, or so small that it is not a normal number.
    const bool right = read ? *read == expected : std::isinf(expected) || !std::isnormal(expected);
    return right ? "" : "a number was read as another one, or not at all";
}

}  // namespace vorlund
