#include "tests/fuzz/inputs.h"

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <variant>

#include "savegame/format.h"
#include "savegame/layout.h"
#include "state/consistent.h"
#include "state/typed_number.h"
#include "tests/engine/checks.h"
#include "tests/engine/games.h"
#include "tests/engine/table.h"

namespace vorlund {
namespace {

std::string WrongWithTurns(const GameState& game) {
    Table table(1);  // always the same chance, so that an input found once shows its fault again
    table.Game = game;
    for (int turn = 0; turn < 3 && !table.Game.GameOver; ++turn) {
        table.Turn.EndTurn();
        // At most four computer players stand between two humans; more closings lead nowhere.
        int closings = 0;
        while (table.Turn.ReportClosed()) {
            if (++closings > MaxPlayers && !table.Game.Current().IsComputer) {
                return "closing the report never gives the board back";
            }
            if (closings > 1000) {
                return "";  // computer players among themselves
            }
        }
        if (!Consistent(table.Game)) {
            return "the records disagree after an end of turn";
        }
        if (!table.Game.GameOver && !table.Game.Current().IsDead) {
            if (const auto broken = BrokenSaving(table.Game)) {
                return *broken;
            }
        }
    }
    return "";
}

/// Whether `text` follows the grammar of a typed number.
bool IsNumber(std::string_view text) {
    const auto skip = [&text](const char* characters, std::size_t most = std::string_view::npos) {
        const std::size_t count = std::min({text.find_first_not_of(characters), text.size(), most});
        text.remove_prefix(count);
        return count;
    };
    const char* const digits = "0123456789";
    skip(" ");
    skip("+-", 1);
    const std::size_t whole = skip(digits);
    const std::size_t fraction = skip(".", 1) == 1 ? skip(digits) : 0;
    if (whole + fraction == 0) {
        return false;
    }
    if (skip("eE", 1) == 1) {
        skip("+-", 1);
        if (skip(digits) == 0) {
            return false;
        }
    }
    skip(" ");
    return text.empty();
}

}  // namespace

std::string WrongWithGame(std::string_view bytes) {
    const auto result = ReadGame(FreshGame(), bytes);
    if (const auto* const bad = std::get_if<BadFile>(&result)) {
        const bool right = bad->Line >= 1 && bad->Line <= TerritoryLine(MaxPlayers, NumTerritories) + 1;
        return right && !bad->What.empty() ? "" : "a refusal without a line or a reason";
    }
    const GameState& game = std::get<GameState>(result);
    if (!Consistent(game) || game.Current().IsDead || game.Current().IsComputer) {
        return "accepted although the records disagree";
    }
    return BrokenSaving(game).value_or(WrongWithTurns(game));
}

std::string WrongWithNumber(std::string_view text) {
    const std::optional<double> read = ReadNumber(text);
    if (!IsNumber(text)) {
        return read ? "a text that is no number was read as one" : "";
    }
    // In the "C" locale strtod reads the same digits, whatever locale the tests run under.
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    const double expected = strtod_l(std::string(text).c_str(), nullptr, plain);
    if (!read) {
        // Out of range is a reason: too large, or so small that it is not a normal number.
        const bool unholdable = std::isinf(expected) || std::fpclassify(expected) != FP_NORMAL;
        return unholdable ? "" : "a number was not read";
    }
    return *read == expected ? "" : "a number was read as another one";
}

}  // namespace vorlund
