#include <algorithm>

#include "computer/attacks.h"
#include "computer/computer_turn.h"
#include "computer/expansion.h"
#include "computer/reinforcement.h"
#include "tests/rules/recorder.h"
#include "tests/rules/rules_page.h"
#include "tests/rules/small_worlds.h"

namespace vorlund {
namespace {

constexpr int Manchuria = 33;
constexpr int Japan = 34;  // Manchuria is its only neighbour

// Anna as a computer player in Vancouver; an enemy next door in Alaska only if `defender` is not negative.
GameState ComputerGame(int players, int troops, int tanks, int defender = -1, int defenderTanks = 0) {
    GameState game = NewGame(players);
    game.Players[Anna].IsComputer = true;
    Give(game, Vancouver, Anna, troops, tanks);
    if (defender >= 0) {
        Give(game, Alaska, Ben, defender, defenderTanks);
    }
    return game;
}

int ClaimsInTurn(int players, bool first, Random& random) {
    GameState game = ComputerGame(players, 10, 0);
    Give(game, Japan, Ben, 10);
    game.Players[Anna].FirstTurn = first;
    Recorder screens;
    ComputerTurn(game, random, screens);
    return static_cast<int>(
               std::count(game.Players[Anna].Owns.begin(), game.Players[Anna].Owns.end(), true)) -
           1;
}

std::string SecondClaim(int players) {
    return OneIn([players](Random& random) { return ClaimsInTurn(players, false, random) == 2; });
}

bool Attacks(int troops, int tanks, int defender, int defenderTanks) {
    GameState game = ComputerGame(2, troops, tanks, defender, defenderTanks);
    Constant attackerWins(0);
    std::string body;
    AttackByComputer(game, attackerWins, 1, body);
    return !body.empty();
}

int AttacksInTurn() {
    GameState game = NewGame(2);
    game.Players[Anna].IsComputer = true;
    for (int t = 0; t < NumTerritories; ++t) {
        Give(game, t, t < 20 ? Anna : Ben, t < 20 ? 50 : 1);
    }
    Constant attackersWin(0);
    Recorder screens;
    ComputerTurn(game, attackersWin, screens);
    return static_cast<int>(std::count(game.Players[Ben].Owns.begin(), game.Players[Ben].Owns.end(), false)) -
           20;
}

struct Stock {
    int Troops;
    int Tanks;
};

Stock Reinforced(int count, bool enemyNear, Random& random) {
    GameState game = NewGame(2);
    Give(game, Japan, Anna, 100, 100);
    if (enemyNear) {
        Give(game, Manchuria, Ben, 1);
    }
    Reinforce(game, random, count);
    return {game.Territories[Japan].Troops - 100, game.Territories[Japan].Tanks - 100};
}

Facts AboutComputersThatGrow() {
    Constant first(0);
    Constant last(0.999F);
    const auto settle = [](Random& random) {
        GameState game = ComputerGame(2, 10, 0);
        std::string body;
        Expand(game, random, 1, body);
        const auto taken = std::find_if(game.Territories.begin(), game.Territories.end(),
                                        [](const Territory& t) { return t.Occupied && t.Troops != 10; });
        return *taken;
    };
    const auto findsBomb = [](Random& random) {
        GameState game = ComputerGame(2, 10, 0);
        Recorder screens;
        ComputerTurn(game, random, screens);
        return game.Players[Anna].HasNuke;
    };
    return {
        "brings a bomb with a chance of " + OneIn(findsBomb) + ".",
        "they claim " + Str(ClaimsInTurn(4, false, first)) + " empty neighbour, in their first turn " +
            Str(ClaimsInTurn(4, true, first)) + ".",
        "a second one with a chance of " + SecondClaim(2) + " in games of two players and " + SecondClaim(3) +
            " in games of three.",
        "gets " + Str(settle(first).Troops) + " troops, and a defense with a chance of " +
            OneIn([&](Random& random) { return settle(random).HasDefense; }) + ".",
        "share out " + Str(Reinforced(10, true, last).Troops) + " new troops per 10 territories",
        "each of their territories gets " + Str(Reinforced(10, false, first).Troops) +
            " troops, and a tank with a chance of " +
            OneIn([](Random& random) { return Reinforced(10, false, random).Tanks == 1; }) + ".",
    };
}

Facts AboutComputersThatFight() {
    const auto strikes = [](int troops) {
        GameState game = ComputerGame(2, 10, 0, troops);
        game.Players[Anna].HasNuke = true;
        std::string body;
        StrikeByComputer(game, body);
        return !game.Players[Anna].HasNuke;
    };
    const int leastTroops = Least([](int troops) { return Attacks(troops, 100, 0, 0); });
    const int margin = Least([](int troops) { return Attacks(troops, 0, 50, 0); }) - 50;
    EXPECT_EQ(Least([](int troops) { return Attacks(troops, 0, 50, 10); }) - 50, margin + 3 * 10);
    EXPECT_EQ(Least([](int troops) { return Attacks(troops, 10, 50, 0); }) - 50, margin - 2 * 10);
    GameState game = ComputerGame(2, 50, 0, 1);
    Constant attackerWins(0);
    std::string body;
    AttackByComputer(game, attackerWins, 1, body);
    return {
        "a territory with " + Str(Least(strikes)) + " or more troops.",
        "they make " + Str(AttacksInTurn()) + " attacks a turn.",
        "They attack with more than " + Str(leastTroops - 1) + " troops,",
        "and three times its tanks by more than " + Str(margin - 1) + ".",
        "and " + Str(game.Territories[Vancouver].Troops) + " new troops stay behind.",
    };
}

TEST(RulesPage, GivesTheFiguresOfComputerPlayers) {
    ExpectOnThePage(AboutComputersThatGrow());
    ExpectOnThePage(AboutComputersThatFight());
}

}  // namespace
}  // namespace vorlund
