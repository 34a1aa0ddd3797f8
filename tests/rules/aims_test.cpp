// SPDX-License-Identifier: MIT
#include "setup/selection.h"
#include "state/prices.h"
#include "state/typed_number.h"
#include "tests/engine/games.h"
#include "tests/rules/play.h"

// What an order could mean and how much it could take, against the orders themselves, in random games.

namespace vorlund {
namespace {

/// Why an order is refused in a copy of `game`; "" when it is carried out.
template <class Order>
std::string Refused(GameState game, Order order) {
    const auto outcome = order(game);
    const auto* refusal = std::get_if<Refusal>(&outcome);
    return refusal != nullptr ? refusal->Message : "";
}

/// A random position in which the current player can afford anything and there is room for every force.
GameState Roomy(Random& hands) {
    GameState game = RandomPosition(hands);
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
TerritorySet Taken(const GameState& game, Order order) {
    return TerritoriesWhere([&](int t) {
        return Refused(game, [&](GameState& g) { return order(g, std::to_string(t + 1)); }).empty();
    });
}

TEST(Aims, ATerritoryIsMeantExactlyIfTheLeastOrderThereIsTaken) {
    SeededRandom hands(11);
    for (int i = 0; i < 40; ++i) {
        const GameState game = Roomy(hands);
        const auto sale = [&](const char* troops, const char* tanks) {
            return Taken(game, [&](GameState& g, const auto& t) { return Sell(g, {t, troops, tanks, ""}); });
        };
        EXPECT_EQ(BuyTerritories(game), Taken(game, [](GameState& g, const auto& t) {
                      return Buy(g, {t, "1", "", ""});
                  }));
        EXPECT_EQ(SellTerritories(game), sale("1", "") | sale("", "1"));
        EXPECT_EQ(StrikeTargets(game), Taken(game, Strike));
        EXPECT_EQ(FactorySites(game), Taken(game, Fact));
        EXPECT_EQ(DefenseSites(game), Taken(game, Def));
    }
}

TEST(Aims, AWayIsMeantExactlyIfTheLeastForceCanGoIt) {
    SeededRandom hands(13);
    SeededRandom chance(1);
    const auto attack = [&](GameState& g, const OrderEntries& entries) { return Attck(g, chance, entries); };
    const auto ways = [](const GameState& game, auto order, auto sourcesOf, auto destinationsOf) {
        TerritorySet sources;
        TerritorySet all;
        for (int from = 0; from < NumTerritories; ++from) {
            const std::string number = std::to_string(from + 1);
            const auto sent = [&](const char* troops, const char* tanks) {
                return Taken(game, [&](GameState& g, const auto& to) {
                    return order(g, {number, to, troops, tanks});
                });
            };
            const TerritorySet reached = sent("1", "") | sent("", "1");
            sources[static_cast<std::size_t>(from)] = reached.any();
            all |= reached;
            EXPECT_TRUE(reached.none() || destinationsOf(game, number) == reached) << number;
        }
        EXPECT_EQ(sourcesOf(game), sources);
        EXPECT_EQ(destinationsOf(game, "no number"), all);
    };
    for (int i = 0; i < 40; ++i) {
        const GameState game = Roomy(hands);
        ways(game, Tran, MoveSources, MoveDestinations);
        ways(game, attack, AttackSources, AttackDestinations);
    }
}

TEST(Aims, WhatIsFreeCanBeSelected) {
    SeededRandom hands(14);
    const GameState game = Roomy(hands);
    const auto selection = [&](auto ask) {
        GameState copy = game;
        return ask(Selection(copy, hands));
    };
    EXPECT_EQ(selection([](auto selecting) { return selecting.Free(); }), TerritoriesWhere([&](int t) {
                  return selection([&](auto selecting) {
                             return selecting.Entr(std::to_string(t + 1)).What;
                         }) != Selection::Step::Kind::Rejected;
              }));
}

/// Counts how often an order of the most is carried out and one of more is not.
class MostTrial {
public:
    explicit MostTrial(Random& hands) : others_(OneIn(2, hands) ? "" : "3") {}

    const std::string& Others() const { return others_; }

    template <class Entries, class Order>
    int Try(const GameState& game, Entries entries, std::string Entries::*entry, const Most& most, int step,
            Order order) const {
        const auto refused = [&](const std::string& quantity) {
            entries.*entry = quantity;
            return Refused(game, [&](GameState& g) { return order(g, entries); });
        };
        if (!others_.empty() && !refused("").empty()) {
            return 0;  // whatever is entered beside the others
        }
        EXPECT_EQ(most.Amount == 0 ? "" : refused(std::to_string(most.Amount)), "") << most.Words;
        if (most.Amount < LargestQuantity) {
            EXPECT_NE(refused(std::to_string(most.Amount + step)), "") << most.Words;
        }
        return 1;
    }

private:
    std::string others_;  // what is entered as each of the other quantities
};

TEST(Aims, AnOrderOfTheMostIsTakenAndOneOfMoreIsNot) {
    SeededRandom hands(12);
    SeededRandom chance(1);
    int tried = 0;
    const std::vector<std::pair<std::string TradeEntries::*, Goods>> traded{
        {&TradeEntries::Troops, Goods::Troops},
        {&TradeEntries::Tanks, Goods::Tanks},
        {&TradeEntries::Oil, Goods::Oil}};
    const std::vector<std::pair<std::string OrderEntries::*, Goods>> sent{
        {&OrderEntries::Troops, Goods::Troops}, {&OrderEntries::Tanks, Goods::Tanks}};
    for (int i = 0; i < 1500; ++i) {
        const GameState game = RandomPosition(hands);
        const Route route = RandomRoute(game, hands);
        const MostTrial trial(hands);
        const auto isIn = [](const TerritorySet& set, const std::string& entry) {
            const auto t = ReadTerritory(entry, TerritoryRounding::IndexInRange);
            return t && Has(set, *t);
        };
        for (const auto& [entry, goods] : traded) {
            const TradeEntries entries{route.From, trial.Others(), trial.Others(), trial.Others()};
            const int step = goods == Goods::Oil ? BarrelsPerDollar : 1;
            if (isIn(BuyTerritories(game), route.From)) {
                tried += trial.Try(game, entries, entry, MostToBuy(game, entries, goods), step, Buy);
            }
            if (isIn(SellTerritories(game), route.From)) {
                tried += trial.Try(game, entries, entry, MostToSell(game, entries, goods), step, Sell);
            }
        }
        for (const auto& [entry, goods] : sent) {
            const OrderEntries entries{route.From, route.To, trial.Others(), trial.Others()};
            if (isIn(MoveSources(game), route.From) && isIn(MoveDestinations(game, route.From), route.To)) {
                tried += trial.Try(game, entries, entry, MostToMove(game, entries, goods), 1, Tran);
            }
            if (isIn(AttackSources(game), route.From) &&
                isIn(AttackDestinations(game, route.From), route.To)) {
                tried += trial.Try(game, entries, entry, MostToAttack(game, entries, goods), 1,
                                   [&](GameState& g, const OrderEntries& e) { return Attck(g, chance, e); });
            }
        }
    }
    EXPECT_GE(tried, 3000);
}

TEST(Aims, WhatBoundsTheMostIsSaid) {
    const GameState game =
        NewGame(2, "7 Anna 10/1F; 8 Anna 1200/0; 9 Ben 2/0; Anna Money 118 Oil 33 MovesLeft 0");
    const auto words = [](const Most& most) { return std::to_string(most.Amount) + ": " + most.Words; };
    EXPECT_EQ(words(MostToBuy(game, {}, Goods::Troops)), "11: at most 11 with $118");
    EXPECT_EQ(words(MostToBuy(game, {"7", "x", "2", ""}, Goods::Troops)), "3: at most 3 with $38");
    EXPECT_EQ(words(MostToBuy(game, {"7", "x", "3", ""}, Goods::Troops)), "0: at most 0 with $-2");
    EXPECT_EQ(words(MostToBuy(game, {"7", "", "x", ""}, Goods::Oil)), "354: at most 354 with $118");
    EXPECT_EQ(words(MostToSell(game, {"7", "", "99", ""}, Goods::Troops)), "10: 10 troops in 7");
    EXPECT_EQ(words(MostToSell(game, {"9", "", "", ""}, Goods::Tanks)),
              "0: Enter a territory of yours first.");
    EXPECT_EQ(words(MostToSell(game, {}, Goods::Oil)), "33: 33 barrels");
    EXPECT_EQ(words(MostToAttack(game, {"7", "", "", ""}, Goods::Tanks)), "1: 1 tank in 7");
    EXPECT_EQ(words(MostToAttack(game, {"", "9", "", ""}, Goods::Tanks)),
              "0: Enter a territory of yours first.");
    EXPECT_EQ(words(MostToMove(game, {"7", "8", "", ""}, Goods::Troops)),
              "0: You have no move left this turn.");
    EXPECT_EQ(words(MostToSell(game, {"8", "", "", ""}, Goods::Troops)),
              "999: at most 999 of 1200 troops in 8");
    EXPECT_EQ(MoveSources(game) | MoveDestinations(game, "") | StrikeTargets(game), TerritorySet());
}

}  // namespace
}  // namespace vorlund
