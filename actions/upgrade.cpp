// SPDX-License-Identifier: MIT
#include "actions/upgrade.h"

#include <array>
#include <cstdint>
#include <optional>

#include "state/int16.h"
#include "state/prices.h"
#include "state/typed_number.h"

namespace vorlund {
namespace {

struct TrackTerms {
    const char* Name;
    std::int16_t Player::*Level;
    const std::array<std::int16_t, 3>& Prices;
};

constexpr TrackTerms TermsOf(Track track) {
    switch (track) {
        case Track::Economy:
            return {"Economy", &Player::EconomyLevel, EconomyPrice};
        case Track::Warfare:
            return {"Warfare", &Player::WarfareLevel, WarfarePrice};
        case Track::Nuclear:
            break;
    }
    return {"Nuclear", &Player::NuclearLevel, NuclearPrice};
}

/// The price of the level after `level`, if there is one.
std::optional<std::int16_t> NextPrice(const TrackTerms& terms, int level) {
    if (level < 0 || level >= static_cast<int>(terms.Prices.size())) {
        return std::nullopt;
    }
    return terms.Prices[static_cast<std::size_t>(level)];
}

struct BuildingTerms {
    const char* Built;     ///< "... built in Japan."
    const char* Building;  ///< "... requires a valid territory number"
    const char* Priced;    ///< "... requires $180."
    const char* Present;   ///< "not already have ..."
    bool Territory::*Flag;
    std::int16_t Price;
};

constexpr BuildingTerms FactoryTerms{"Factory",   "Building a factory",   "A factory",
                                     "a factory", &Territory::HasFactory, FactoryPrice};
constexpr BuildingTerms DefenseTerms{"Defense", "Building defense",     "Defense",
                                     "defense", &Territory::HasDefense, DefensePrice};

bool CanStandIn(const GameState& game, const BuildingTerms& terms, int t) {
    return Owns(game, game.CurrentPlayer, t) && !(game.TerritoryAt(t).*terms.Flag);
}

std::variant<Refusal, Purchase> Build(GameState& game, const BuildingTerms& terms, std::string_view typed) {
    const auto t = ReadTerritory(typed, TerritoryRounding::Number);
    if (!t) {
        return Refusal{std::string(terms.Building) +
                       " requires a valid territory number (1-42).\rNo transaction was made."};
    }
    if (!CanStandIn(game, terms, *t)) {
        return Refusal{std::string("The territory must be owned by you\rand not already have ") +
                       terms.Present + "."};
    }
    if (game.Current().Money < terms.Price) {
        return Refusal{std::string("You do not have enough money.\r") + terms.Priced + " requires $" +
                       std::to_string(terms.Price) + "."};
    }
    Territory& territory = game.TerritoryAt(*t);
    territory.*terms.Flag = true;
    Add(game.Current().Money, -terms.Price);
    return Purchase{std::string(terms.Built) + " built in " + std::string(territory.Name) + ".\r"};
}

}  // namespace

std::string StatusOf(const GameState& game, Track track) {
    const TrackTerms terms = TermsOf(track);
    const int level = game.Current().*terms.Level;
    const auto price = NextPrice(terms, level);
    return std::string("Current ") + terms.Name + " upgrade: " + std::to_string(level) +
           "\rNext upgrade cost: $" + (price ? std::to_string(*price) : "max");
}

WhyNot WhyNoUpgrade(const GameState& game, Track track) {
    const TrackTerms terms = TermsOf(track);
    return NextPrice(terms, game.Current().*terms.Level) ? std::nullopt
                                                         : WhyNot("This upgrade is at its highest level.");
}

std::variant<Nothing, Refusal, Purchase> RaiseLevel(GameState& game, Track track) {
    const TrackTerms terms = TermsOf(track);
    Player& player = game.Current();
    const auto price = NextPrice(terms, player.*terms.Level);
    if (!price) {
        return Nothing{};
    }
    if (player.Money < *price) {
        return Refusal{"You do not have enough money for this upgrade."};
    }
    Add(player.*terms.Level, 1);
    Add(player.Money, -*price);
    return Purchase{"Level " + std::to_string(player.*terms.Level) + " " + terms.Name +
                    " upgrade complete.\r"};
}

TerritorySet FactorySites(const GameState& game) {
    return TerritoriesWhere([&](int t) { return CanStandIn(game, FactoryTerms, t); });
}

TerritorySet DefenseSites(const GameState& game) {
    return TerritoriesWhere([&](int t) { return CanStandIn(game, DefenseTerms, t); });
}

std::variant<Refusal, Purchase> Fact(GameState& game, std::string_view territory) {
    auto outcome = Build(game, FactoryTerms, territory);
    if (std::holds_alternative<Purchase>(outcome)) {
        Add(game.Current().Factories, 1);
    }
    return outcome;
}

std::variant<Refusal, Purchase> Def(GameState& game, std::string_view territory) {
    return Build(game, DefenseTerms, territory);
}

}  // namespace vorlund
