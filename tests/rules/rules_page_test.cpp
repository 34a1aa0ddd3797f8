#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <string>
#include <vector>

#include "actions/battle.h"
#include "computer/attacks.h"
#include "computer/computer_turn.h"
#include "computer/expansion.h"
#include "computer/reinforcement.h"
#include "setup/selection.h"
#include "state/prices.h"
#include "state/world.h"
#include "turn/turn_cycle.h"
#include "turn/upkeep.h"

// The page docs/rules.md, which the manual page carries as well, gives the rules' own figures.

namespace vorlund {
namespace {

/// Puts the figures in the places of the template's #.
std::string Filled(std::string sentence, const std::vector<int>& figures) {
    for (const int figure : figures) {
        sentence.replace(sentence.find('#'), 1, std::to_string(figure));
    }
    return sentence;
}

template <typename Property>
std::vector<int> NumbersOf(Property property) {
    std::vector<int> numbers;
    for (std::size_t t = 0; t < World.size(); ++t) {
        if (property(World[t])) {
            numbers.push_back(static_cast<int>(t) + 1);
        }
    }
    return numbers;
}

std::vector<int> PercentByLead() {
    std::vector<int> percent;
    for (int lead = -3; lead <= 5; ++lead) {
        percent.push_back(
            static_cast<int>(std::lround(100.0 * (DefenderLosesUpTo + 1) / (EvenFaces + lead))));
    }
    return percent;
}

std::string PageAsOneLine() {
    std::ifstream file(VORLUND_SOURCE_DIR "/docs/rules.md");
    std::string text;
    for (std::string word; file >> word;) {
        text += word + " ";
    }
    return text;
}

struct Fact {
    std::string Sentence;
    std::vector<int> Figures;
};

TEST(RulesPage, GivesTheFiguresOfTheRules) {
    const auto prices = [](const std::array<std::int16_t, 3>& levels) {
        return std::vector<int>(levels.begin(), levels.end());
    };
    const std::vector<Fact> facts{
        {"starts there with # troops, a factory and $#.", {StartingTroops, HumanStartingMoney}},
        {"you have # moves and # attacks", {MovesPerTurn, AttacksPerTurn}},
        {"pays $# if its value is 6 and $# if it is 7.", {TerritoryIncome(6), TerritoryIncome(7)}},
        {"value is 7 in the territories #, #, #, #, #, # and #.",
         NumbersOf([](const WorldEntry& entry) { return entry.Value == 7; })},
        {"An Economy level adds # percent", {EconomyPercent}},
        {"A troop costs $#, a factory $# and a tank # barrel of oil.",
         {TroopUpkeep, FactoryUpkeep, TankUpkeepBarrels}},
        {"Oil that you do not have costs $# a barrel.", {MissingBarrelPrice}},
        {"An oil field gives # barrels.", {OilFieldBarrels}},
        {"one in each of the territories #, #, #, #, # and #.",
         NumbersOf([](const WorldEntry& entry) { return entry.HasOil; })},
        {"turn # eliminates you", {DebtTurnsBeforeCollapse}},
        {"is 1 in #, and from Nuclear level 1 to 3 it is 1 in #, 1 in # and 1 in #.",
         {ResearchFaces.begin(), ResearchFaces.end()}},
        {"A troop costs $# and sells for $#.", {TroopPrice, TroopSalePrice}},
        {"A tank costs $# and sells for $#.", {TankPrice, TankSalePrice}},
        {"at # barrels for $1.", {BarrelsPerDollar}},
        {"A factory costs $# and a defense $#.", {FactoryPrice, DefensePrice}},
        {"The Economy levels cost $#, $# and $#.", prices(EconomyPrice)},
        {"The Warfare levels cost $#, $# and $#.", prices(WarfarePrice)},
        {"The Nuclear levels cost $#, $# and $#.", prices(NuclearPrice)},
        {"every # hits destroy a tank.", {HitsPerTank}},
        {"and # more if there is a defense.", {DefenseLead}},
        {"# percent at -3, # at -2, # at -1, # at 0, # at 1, # at 2, # at 3, # at 4 and # at 5.",
         PercentByLead()},
        {"brings a bomb with a chance of 1 in #.", {BombFaces}},
        {"on a territory with # or more troops.", {TroopsWorthABomb}},
        {"they claim 1 empty neighbour, in their first turn #.", {FirstTurnClaims}},
        {"1 in # in games of two players and 1 in # in games of three.",
         {SecondClaimFacesOfTwo, SecondClaimFacesOfThree}},
        {"gets # troops, and a defense with a chance of 1 in #.", {SettlingTroops, DefenseFaces}},
        {"share out # new troops per 10 territories", {TroopsPerTenTerritories}},
        {"territories gets 2 troops, and a tank with a chance of 1 in #.", {QuietTankFaces}},
        {"they make # attacks a turn.", {ComputerAttacks}},
        {"They attack with more than # troops,", {TroopsThatNeverAttack}},
        {"three times its tanks by more than #.", {AttackMargin}},
        {"and # new troops stay behind.", {TroopsLeftBehind}},
    };
    const std::string page = PageAsOneLine();
    for (const Fact& fact : facts) {
        const std::string sentence = Filled(fact.Sentence, fact.Figures);
        EXPECT_NE(page.find(sentence), std::string::npos) << "the page does not say: " << sentence;
    }
}

}  // namespace
}  // namespace vorlund
