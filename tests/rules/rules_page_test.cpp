#include "tests/rules/rules_page.h"

#include "actions/battle.h"
#include "actions/buy.h"
#include "actions/sell.h"
#include "actions/strike.h"
#include "actions/upgrade.h"
#include "setup/selection.h"
#include "tests/rules/recorder.h"
#include "tests/rules/small_worlds.h"
#include "turn/turn_cycle.h"
#include "turn/upkeep.h"

namespace vorlund {
namespace {

constexpr int EasternUsa = 7;  // value 7, no oil field

using Setting = std::function<void(GameState&)>;

std::string List(const std::vector<int>& numbers) {
    std::string list;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        list += (i == 0 ? "" : i + 1 == numbers.size() ? " and " : ", ") + Str(numbers[i]);
    }
    return list;
}

std::string TerritoriesWith(const std::function<bool(const WorldEntry&)>& property) {
    std::vector<int> numbers;
    for (int t = 0; t < NumTerritories; ++t) {
        if (property(World[static_cast<std::size_t>(t)])) {
            numbers.push_back(t + 1);
        }
    }
    return List(numbers);
}

// What an upkeep of Anna, who has nothing but what `setting` gives her, brings in.
struct Gain {
    int Money;
    int Oil;
};

Gain GainOf(const Setting& setting) {
    GameState game = NewGame(2);
    game.Players[Anna].Oil = 100;
    setting(game);
    Constant random(0);
    RunUpkeep(game, random, Anna);
    return {game.Players[Anna].Money, game.Players[Anna].Oil - 100};
}

int TurnsInDebtUntilDeath() {
    GameState game = NewGame(2);
    Give(game, Vancouver, Anna, 1000);
    Constant random(0);
    for (int turn = 1; turn < 100; ++turn) {
        RunUpkeep(game, random, Anna);
        if (game.Players[Anna].IsDead) {
            return turn;
        }
    }
    return 0;
}

std::string ResearchAt(std::int16_t level) {
    return OneIn([level](Random& random) {
        GameState game = NewGame(2);
        game.Players[Anna].NuclearLevel = level;
        RunUpkeep(game, random, Anna);
        return game.Players[Anna].HasNuke;
    });
}

// What Anna, who holds Vancouver with a factory and plenty of everything, pays for what `trade` does.
int Paid(const Setting& trade) {
    GameState game = NewGame(2);
    Give(game, Vancouver, Anna, 100, 100);
    GiveFactory(game, Vancouver);
    Claim(game, Alaska, Anna);
    game.Players[Anna].Money = 5000;
    game.Players[Anna].Oil = 100;
    trade(game);
    return 5000 - game.Players[Anna].Money;
}

const TradeEntries Troop{"2", "1", "", ""};
const TradeEntries Tank{"2", "", "1", ""};

TradeEntries Oil(int barrels) {
    return {"", "", "", Str(barrels)};
}

int Bought(const TradeEntries& entries) {
    return Paid([&](GameState& game) { Buy(game, entries); });
}

int SoldFor(const TradeEntries& entries) {
    return -Paid([&](GameState& game) { Sell(game, entries); });
}

std::string LevelPrices(Track track) {
    std::vector<int> paid;
    Paid([&](GameState& game) {
        for (int level = 1; level <= 3; ++level) {
            const int before = game.Players[Anna].Money;
            RaiseLevel(game, track);
            paid.push_back(before - game.Players[Anna].Money);
        }
    });
    return "$" + Str(paid[0]) + ", $" + Str(paid[1]) + " and $" + Str(paid[2]);
}

int RoundWon(int lead) {
    return static_cast<int>(std::lround(Percent([lead](Random& random) {
        GameState game = NewGame(2);
        Give(game, Alaska, Anna, 1);
        Give(game, Vancouver, Ben, 1);
        Battle battle = BeginBattle(game, Vancouver, 1, 0);
        battle.WarDiff = lead;
        BattleRound(game, random, battle);
        return battle.Troops == 1;
    })));
}

std::string RoundsWon() {
    std::string text = Str(RoundWon(-3)) + " percent at -3";
    for (int lead = -2; lead <= 5; ++lead) {
        text += (lead == 5 ? " and " : ", ") + Str(RoundWon(lead)) + " at " + Str(lead);
    }
    return text;
}

int HitsOnATank() {
    GameState game = NewGame(2);
    Give(game, Vancouver, Ben, 0, 1);
    Battle battle = BeginBattle(game, Vancouver, 1, 0);
    Constant attackerWins(0);
    int hits = 0;
    for (; game.Territories[Vancouver].Tanks > 0 && hits < 100; ++hits) {
        BattleRound(game, attackerWins, battle);
    }
    return hits;
}

int LeadOfDefense() {
    GameState game = NewGame(2);
    Give(game, Vancouver, Ben, 1);
    game.Territories[Vancouver].HasDefense = true;
    return BeginBattle(game, Vancouver, 1, 0).WarDiff;
}

std::string Share(int whole, int part) {
    return whole == 2 * part ? "half" : whole == 4 * part ? "a quarter" : Str(part) + "/" + Str(whole);
}

std::string BombShares() {
    GameState game = NewGame(2);
    Give(game, Vancouver, Ben, 100, 100);
    const BombLosses losses = DropBomb(game, Vancouver);
    return Share(100, losses.Troops) + " of the troops and " + Share(100, losses.Tanks) + " of the tanks";
}

Facts AboutTheTurn() {
    GameState game = NewGame(2);
    Constant random(0);
    Selection selection(game, random);
    selection.Open();
    selection.Entr("20");
    selection.Entr("35");
    const Player start = game.Current();
    Recorder screens;
    TurnCycle turn(game, random, screens, [] {});
    turn.OpenFirstTurn();
    return {"starts there with " + Str(start.Troops) + " troops, a factory and $" + Str(start.Money) + ".",
            "you have " + Str(game.Current().MovesLeft) + " moves and " + Str(game.Current().AttacksLeft) +
                " attacks"};
}

Facts AboutTheUpkeep() {
    const auto own = [](int t) { return [t](GameState& game) { Give(game, t, Anna, 0); }; };
    const auto usa = [](std::int16_t level) {
        return GainOf([level](GameState& game) {
                   Give(game, EasternUsa, Anna, 0);
                   Give(game, Vancouver, Anna, 0);
                   game.Players[Anna].EconomyLevel = level;
               })
            .Money;
    };
    const int troop = -GainOf([](GameState& game) { game.Players[Anna].Troops = 1; }).Money;
    const int factory = -GainOf([](GameState& game) { game.Players[Anna].Factories = 1; }).Money;
    const int tank = -GainOf([](GameState& game) { game.Players[Anna].Tanks = 1; }).Oil;
    const int missing = -GainOf([](GameState& game) { game.Players[Anna].Tanks = 101; }).Money;
    return {
        "pays $" + Str(GainOf(own(Vancouver)).Money) + " if its value is 6 and $" +
            Str(GainOf(own(EasternUsa)).Money) + " if it is 7.",
        "The value is 7 in the territories " +
            TerritoriesWith([](const WorldEntry& entry) { return entry.Value == 7; }) + ".",
        "An Economy level adds " + Str(static_cast<int>(std::lround(100.0 * usa(1) / usa(0) - 100))) +
            " percent",
        "A troop costs $" + Str(troop) + ", a factory $" + Str(factory) + " and a tank " + Str(tank) +
            " barrel of oil.",
        "Oil that you do not have costs $" + Str(missing) + " a barrel.",
        "An oil field gives " + Str(GainOf(own(Alaska)).Oil) + " barrels.",
        "in each of the territories " +
            TerritoriesWith([](const WorldEntry& entry) { return entry.HasOil; }) + ".",
        "turn " + Str(TurnsInDebtUntilDeath()) + " eliminates you",
        "The chance is " + ResearchAt(0) + ", and from Nuclear level 1 to 3 it is " + ResearchAt(1) + ", " +
            ResearchAt(2) + " and " + ResearchAt(3) + ".",
    };
}

Facts AboutPrices() {
    const int barrels = Least([](int n) { return Bought(Oil(n)) > 0; });
    EXPECT_EQ(SoldFor(Oil(barrels)), 1) << "oil sells for what it costs";
    const int factory = Paid([](GameState& game) { Fact(game, Str(Alaska + 1)); });
    const int defense = Paid([](GameState& game) { Def(game, Str(Alaska + 1)); });
    return {
        "A troop costs $" + Str(Bought(Troop)) + " and sells for $" + Str(SoldFor(Troop)) + ".",
        "A tank costs $" + Str(Bought(Tank)) + " and sells for $" + Str(SoldFor(Tank)) + ".",
        "at " + Str(barrels) + " barrels for $" + Str(Bought(Oil(barrels))) + ".",
        "A factory costs $" + Str(factory) + " and a defense $" + Str(defense) + ".",
        "The Economy levels cost " + LevelPrices(Track::Economy) + ".",
        "The Warfare levels cost " + LevelPrices(Track::Warfare) + ".",
        "The Nuclear levels cost " + LevelPrices(Track::Nuclear) + ".",
    };
}

Facts AboutFighting() {
    return {
        "every " + Str(HitsOnATank()) + " hits destroy a tank.",
        "and " + Str(LeadOfDefense()) + " more if there is a defense.",
        "with a chance of " + RoundsWon() + ".",
        "A bomb kills " + BombShares(),
    };
}

TEST(RulesPage, GivesTheFiguresOfTheTurn) {
    ExpectOnThePage(AboutTheTurn());
    ExpectOnThePage(AboutTheUpkeep());
    ExpectOnThePage(AboutPrices());
    ExpectOnThePage(AboutFighting());
}

}  // namespace
}  // namespace vorlund
