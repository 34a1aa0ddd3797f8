// SPDX-License-Identifier: MIT
#include "setup/selection.h"
#include "state/prices.h"
#include "state/typed_number.h"
#include "tests/engine/games.h"
#include "tests/rules/play.h"

// The territories and the largest quantities that orders accept, compared with the orders themselves in
// random positions.

namespace vorlund {
namespace {

/// The refusal of an order in a copy of `game`; empty when it is carried out.
template <class Order>
std::string RefusalOf(GameState game, Order order) {
    const auto outcome = order(game);
    const auto* refusal = std::get_if<Refusal>(&outcome);
    return refusal != nullptr ? refusal->Message : "";
}

/// A random position in which no order is refused for money, for a bomb or for room.
GameState PositionWithoutLimits(Random& random) {
    GameState game = RandomPosition(random);
    for (Territory& territory : game.Territories) {
        territory.Stationed.Troops = std::min<std::int16_t>(territory.Stationed.Troops, 60);
        territory.Stationed.Tanks = std::min<std::int16_t>(territory.Stationed.Tanks, 8);
    }
    game.Current().Total = {2000, 300};
    game.Current().Money = 1000;
    game.Current().HasNuke = true;
    return game;
}

/// The territories for whose number `order` is carried out.
template <class Order>
TerritorySet AcceptedBy(const GameState& game, Order order) {
    return TerritoriesWhere([&](int t) {
        return RefusalOf(game, [&](GameState& copy) { return order(copy, std::to_string(t + 1)); }).empty();
    });
}

auto AttackWith(Random& chance) {
    return [&](GameState& game, const OrderEntries& entries) { return Attck(game, chance, entries); };
}

TEST(OrderTerritories, AreThoseWhereTheSmallestOrderIsAccepted) {
    SeededRandom random(11);
    for (int i = 0; i < 40; ++i) {
        const GameState game = PositionWithoutLimits(random);
        const auto sale = [&](const char* troops, const char* tanks) {
            return AcceptedBy(game, [&](GameState& g, const auto& t) {
                return Sell(g, {t, troops, tanks, ""});
            });
        };
        const auto purchase = [](GameState& g, const auto& t) { return Buy(g, {t, "1", "", ""}); };
        EXPECT_EQ(BuyTerritories(game), AcceptedBy(game, purchase));
        EXPECT_EQ(SellTerritories(game), sale("1", "") | sale("", "1"));
        EXPECT_EQ(StrikeTargets(game), AcceptedBy(game, Strike));
        EXPECT_EQ(FactorySites(game), AcceptedBy(game, Fact));
        EXPECT_EQ(DefenseSites(game), AcceptedBy(game, Def));
    }
}

TEST(OrderTerritories, OfMovesAndAttacksAreThoseWhereTheSmallestForceCanBeSent) {
    SeededRandom random(13);
    SeededRandom chance(1);
    const auto compare = [](const GameState& game, auto order, auto sourcesOf, auto destinationsOf) {
        TerritorySet sources;
        TerritorySet all;
        for (int from = 0; from < NumTerritories; ++from) {
            const std::string number = std::to_string(from + 1);
            const auto destinations = [&](const char* troops, const char* tanks) {
                return AcceptedBy(game, [&](GameState& g, const auto& to) {
                    return order(g, {number, to, troops, tanks});
                });
            };
            const TerritorySet reached = destinations("1", "") | destinations("", "1");
            sources[static_cast<std::size_t>(from)] = reached.any();
            all |= reached;
            const bool own = Owns(game, game.CurrentPlayer, from);
            EXPECT_TRUE(!own || destinationsOf(game, number) == reached) << number;
        }
        EXPECT_EQ(sourcesOf(game), sources);
        EXPECT_EQ(destinationsOf(game, "no number"), all);
    };
    for (int i = 0; i < 40; ++i) {
        const GameState game = PositionWithoutLimits(random);
        compare(game, Tran, MoveSources, MoveDestinations);
        compare(game, AttackWith(chance), AttackSources, AttackDestinations);
    }
}

TEST(OrderTerritories, OfTheSelectionAreTheUnoccupiedOnes) {
    SeededRandom random(14);
    GameState game = RandomPosition(random);
    const TerritorySet unoccupied = Selection(game, random).Free();
    for (int t = 0; t < NumTerritories; ++t) {
        GameState copy = game;
        const auto step = Selection(copy, random).Entr(std::to_string(t + 1));
        EXPECT_EQ(Has(unoccupied, t), step.What != Selection::Step::Kind::Rejected);
    }
}

/// Expects that an order with `most` of one quantity is accepted and that one with `step` more is not, unless
/// the other quantities are refused by themselves. Returns the number of comparisons.
template <class Entries, class Order>
int CompareWithMost(const GameState& game, Entries entries, std::string Entries::*quantity, const Most& most,
                    int step, Order order) {
    const bool isAlone = (entries.*quantity).empty();  // all quantities are entered alike at first
    const auto refusalOf = [&](const std::string& value) {
        entries.*quantity = value;
        return RefusalOf(game, [&](GameState& copy) { return order(copy, entries); });
    };
    if (!isAlone && !refusalOf("").empty()) {
        return 0;
    }
    EXPECT_EQ(most.Amount == 0 ? "" : refusalOf(std::to_string(most.Amount)), "") << most.Words;
    EXPECT_TRUE(most.Amount == LargestQuantity || !refusalOf(std::to_string(most.Amount + step)).empty())
        << most.Words;
    return 1;
}

TEST(OrderLimits, AreTheLargestQuantitiesThatAreAccepted) {
    SeededRandom random(12);
    SeededRandom chance(1);
    int compared = 0;
    for (int i = 0; i < 1500; ++i) {
        const GameState game = RandomPosition(random);
        const Route route = RandomRoute(game, random);
        const std::string others = OneIn(2, random) ? "" : "3";
        const TradeEntries traded{route.From, others, others, others};
        const OrderEntries sent{route.From, route.To, others, others};
        const auto isIn = [](const TerritorySet& set, const std::string& entry) {
            const auto t = ReadTerritory(entry, TerritoryRounding::IndexInRange);
            return t && Has(set, *t);
        };
        const auto compare = [&](auto order, auto most, auto entries, auto quantity, Goods goods) {
            compared += CompareWithMost(game, entries, quantity, most(game, entries, goods),
                                        goods == Goods::Oil ? BarrelsPerDollar : 1, order);
        };
        const auto compareUnits = [&](auto order, auto most, const auto& entries) {
            using Entries = std::decay_t<decltype(entries)>;
            compare(order, most, entries, &Entries::Troops, Goods::Troops);
            compare(order, most, entries, &Entries::Tanks, Goods::Tanks);
        };
        if (isIn(BuyTerritories(game), route.From)) {
            compareUnits(Buy, MostToBuy, traded);
            compare(Buy, MostToBuy, traded, &TradeEntries::Oil, Goods::Oil);
        }
        if (isIn(SellTerritories(game), route.From)) {
            compareUnits(Sell, MostToSell, traded);
            compare(Sell, MostToSell, traded, &TradeEntries::Oil, Goods::Oil);
        }
        if (isIn(MoveSources(game), route.From) && isIn(MoveDestinations(game, route.From), route.To)) {
            compareUnits(Tran, MostToMove, sent);
        }
        if (isIn(AttackSources(game), route.From) && isIn(AttackDestinations(game, route.From), route.To)) {
            compareUnits(AttackWith(chance), MostToAttack, sent);
        }
    }
    EXPECT_GE(compared, 3000);
}

TEST(OrderLimits, SayWhatLimitsTheQuantity) {
    const GameState game =
        NewGame(2, "7 Anna 10/1F; 8 Anna 1200/0; 9 Ben 2/0; Anna Money 118 Oil 33 MovesLeft 0");
    const auto words = [](const Most& most) { return std::to_string(most.Amount) + ": " + most.Words; };
    const std::string noTerritory = "0: Enter a territory of yours first.";
    EXPECT_EQ(words(MostToBuy(game, {}, Goods::Troops)), "11: at most 11 with $118");
    EXPECT_EQ(words(MostToBuy(game, {"7", "x", "2", ""}, Goods::Troops)), "3: at most 3 with $38");
    EXPECT_EQ(words(MostToBuy(game, {"7", "x", "3", ""}, Goods::Troops)), "0: at most 0 with $-2");
    EXPECT_EQ(words(MostToBuy(game, {"7", "", "x", ""}, Goods::Oil)), "354: at most 354 with $118");
    EXPECT_EQ(words(MostToSell(game, {"7", "", "99", ""}, Goods::Troops)), "10: 10 troops in 7");
    EXPECT_EQ(words(MostToSell(game, {"9", "", "", ""}, Goods::Tanks)), noTerritory);
    EXPECT_EQ(words(MostToSell(game, {}, Goods::Oil)), "33: 33 barrels");
    EXPECT_EQ(words(MostToAttack(game, {"7", "", "", ""}, Goods::Tanks)), "1: 1 tank in 7");
    EXPECT_EQ(words(MostToAttack(game, {"", "9", "", ""}, Goods::Tanks)), noTerritory);
    EXPECT_EQ(words(MostToMove(game, {"7", "8", "", ""}, Goods::Troops)),
              "0: You have no move left this turn.");
    EXPECT_EQ(words(MostToSell(game, {"8", "", "", ""}, Goods::Troops)),
              "999: at most 999 of 1200 troops in 8");
    EXPECT_EQ(MoveSources(game) | MoveDestinations(game, "") | StrikeTargets(game), TerritorySet());
}

}  // namespace
}  // namespace vorlund
