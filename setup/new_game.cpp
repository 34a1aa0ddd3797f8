// SPDX-License-Identifier: MIT
#include "setup/new_game.h"

#include <string_view>

#include "savegame/format.h"
#include "state/text.h"

namespace vorlund {
namespace {

/// Refuses names that are `wrong`, with a beep for each; the prompt has the last one's row between `before`
/// and `after`.
template <typename Predicate>
std::optional<NamesRefusal> RefuseRows(std::span<const std::string> names, Predicate wrong,
                                       std::string_view before, std::string_view after) {
    NamesRefusal refusal;
    for (std::size_t row = 0; row < names.size(); ++row) {
        if (wrong(names[row])) {
            ++refusal.Beeps;
            refusal.Prompt = std::string(before) + std::to_string(row + 1) + std::string(after);
        }
    }
    return refusal.Beeps > 0 ? std::optional(refusal) : std::nullopt;
}

bool MeansComputer(std::string_view typedName) {
    const std::string name = LowerCase(typedName);
    return name == "computer" || name == "comp";
}

}  // namespace

void SetNumPlayers(GameState& game, int players) {
    game.NumPlayers = static_cast<std::int16_t>(players);
}

std::optional<NamesRefusal> EnterNames(GameState& game, std::span<const std::string> names) {
    const auto isMissing = [](const std::string& name) { return name.empty(); };
    if (auto refusal = RefuseRows(names, isMissing, "Enter a name for Player ", ".")) {
        return refusal;
    }
    const auto cannotBeSaved = [](const std::string& name) { return !NameReadsBack(name); };
    if (auto refusal =
            RefuseRows(names, cannotBeSaved, "Player ", "'s name cannot be saved; enter another.")) {
        return refusal;
    }
    bool anyHuman = false;
    for (std::size_t row = 0; row < names.size(); ++row) {
        Player& player = game.Players[row];
        player.IsComputer = MeansComputer(names[row]);
        player.Name = player.IsComputer ? "CompPlayer" + std::to_string(row + 1) : names[row];
        anyHuman = anyHuman || !player.IsComputer;
    }
    if (!anyHuman) {
        return NamesRefusal{"You must have at least one human player.", 0};
    }
    game.GameLoaded = false;
    return std::nullopt;
}

}  // namespace vorlund
