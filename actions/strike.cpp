#include "actions/strike.h"

#include "state/int16.h"
#include "state/typed_number.h"

namespace vorlund {

BombLosses DropBomb(GameState& game, int target) {
    Territory& territory = game.TerritoryAt(target);
    Player& owner = game.PlayerAt(territory.Owner);
    const BombLosses losses{static_cast<std::int16_t>(territory.Troops / 2),
                            static_cast<std::int16_t>(territory.Tanks / 4)};
    Add(territory.Troops, -losses.Troops);
    Add(territory.Tanks, -losses.Tanks);
    Add(owner.Troops, -losses.Troops);
    Add(owner.Tanks, -losses.Tanks);
    game.Current().HasNuke = false;
    return losses;
}

std::string BombText(const GameState& game) {
    return game.Current().HasNuke ? "You have a nuclear bomb to use." : "You do not have a nuclear bomb.";
}

std::variant<Beep, Refusal, Report> Strike(GameState& game, bool strikeEnabled, std::string_view target) {
    if (!strikeEnabled) {
        return Beep{};
    }
    if (target.empty()) {
        return Refusal{"Enter a number 1-42 for the country to nuke."};
    }
    const auto t = ReadTerritory(target, TerritoryRounding::IndexInRange);
    if (!t) {
        return Refusal{"The country number must be 1-42."};
    }
    const Territory& territory = game.TerritoryAt(*t);
    if (!territory.Occupied) {
        return Refusal{"You may not nuke an unoccupied territory."};
    }
    if (Owns(game, game.CurrentPlayer, *t)) {
        return Refusal{"You may not nuke your own territory."};
    }
    const BombLosses losses = DropBomb(game, *t);
    const int owner = territory.Owner;
    Report report;
    report.Title = "Vorlund - Nuclear Strike Results";
    report.Headline = "Your nuclear attack upon " + std::string(territory.Name) + " was successful.";
    report.Body = "Casualties for Player " + std::to_string(owner + 1) + ", " + game.PlayerAt(owner).Name +
                  ":\r        Troops: " + std::to_string(losses.Troops) +
                  "\r        Tanks: " + std::to_string(losses.Tanks) + "\r\r";
    return report;
}

}  // namespace vorlund
