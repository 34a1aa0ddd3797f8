// SPDX-License-Identifier: MIT
#include "actions/strike.h"

#include <optional>

#include "actions/force.h"
#include "state/player_words.h"
#include "state/typed_number.h"

namespace vorlund {
namespace {

/// Why the current player cannot bomb territory index `t`, or nothing.
std::optional<Refusal> RefuseTarget(const GameState& game, int t) {
    if (!game.TerritoryAt(t).Occupied) {
        return Refusal{"You may not nuke an unoccupied territory."};
    }
    if (Owns(game, game.CurrentPlayer, t)) {
        return Refusal{"You may not nuke your own territory."};
    }
    return std::nullopt;
}

}  // namespace

Units DropBomb(GameState& game, int target) {
    Territory& territory = game.TerritoryAt(target);
    const Units losses{static_cast<std::int16_t>(territory.Stationed.Troops / 2),
                       static_cast<std::int16_t>(territory.Stationed.Tanks / 4)};
    Add(territory.Stationed, -losses);
    Add(game.PlayerAt(territory.Owner).Total, -losses);
    game.Current().HasNuke = false;
    return losses;
}

std::string BombText(const GameState& game) {
    return game.Current().HasNuke ? "You have a nuclear bomb to use." : "You do not have a nuclear bomb.";
}

WhyNot WhyNoStrike(const GameState& game) {
    return game.Current().HasNuke ? std::nullopt : WhyNot("You have no nuclear bomb.");
}

TerritorySet StrikeTargets(const GameState& game) {
    return WhyNoStrike(game) ? TerritorySet()
                             : TerritoriesWhere([&](int t) { return !RefuseTarget(game, t); });
}

std::variant<Beep, Refusal, Report> Strike(GameState& game, std::string_view target) {
    if (WhyNoStrike(game)) {
        return Beep{};
    }
    if (target.empty()) {
        return Refusal{"Enter a number 1-42 for the country to nuke."};
    }
    const auto t = ReadTerritory(target, TerritoryRounding::IndexInRange);
    if (!t) {
        return Refusal{"The country number must be 1-42."};
    }
    if (const auto refusal = RefuseTarget(game, *t)) {
        return *refusal;
    }
    const Territory& territory = game.TerritoryAt(*t);
    const Units losses = DropBomb(game, *t);
    return Report{"Vorlund - Nuclear Strike Results",
                  "Your nuclear attack upon " + std::string(territory.Name) + " was successful.",
                  Casualties(PlayerAndName(game, territory.Owner), losses)};
}

}  // namespace vorlund
