// SPDX-License-Identifier: MIT
#include "computer/computer_turn.h"

#include "computer/attacks.h"
#include "computer/expansion.h"
#include "computer/reinforcement.h"
#include "turn/turn_cycle.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

constexpr int BombRoll = 2;

struct Quotas {
    int Expansion;
    int Attack;
};

/// How many territories may be claimed and attacked in this turn. The die for a game of two is rolled in
/// every game, the one for a game of three unless the first has given a second claim.
Quotas DrawQuotas(const GameState& game, Random& random) {
    if (game.Current().FirstTurn) {
        return {FirstTurnClaims, 0};
    }
    if (random.Draw(SecondClaimFacesOfTwo) == 1 && game.NumPlayers == 2) {
        return {2, ComputerAttacks};
    }
    const bool lucky = random.Draw(SecondClaimFacesOfThree) == 1 && game.NumPlayers == 3;
    return {lucky ? 2 : 1, ComputerAttacks};
}

struct Census {
    int Territories = 0;
    int Strongest = 0;  ///< territory index; the highest index among equals
};

Census TakeCensus(const GameState& game) {
    Census census;
    int bestStrength = 0;
    for (int t = 0; t < NumTerritories; ++t) {
        if (!Owns(game, game.CurrentPlayer, t)) {
            continue;
        }
        ++census.Territories;
        const int strength = 3 * game.TerritoryAt(t).Stationed.Tanks + game.TerritoryAt(t).Stationed.Troops;
        if (strength >= bestStrength) {
            bestStrength = strength;
            census.Strongest = t;
        }
    }
    return census;
}

}  // namespace

void ComputerTurn(GameState& game, Random& random, Screens& screens) {
    const int p = game.CurrentPlayer;
    Player& player = game.Current();
    screens.CloseReport();
    random.Reseed();
    screens.SetBoardTitle(TurnTitle(game));
    Report report{"Computer player " + player.Name + "'s status", "The computer did the following:", ""};

    if (random.Draw(BombFaces) == BombRoll) {
        player.HasNuke = true;
    }
    const Quotas quotas = DrawQuotas(game, random);
    Census census = TakeCensus(game);
    if (player.Factories == 0) {
        player.Factories = 1;
        game.TerritoryAt(census.Strongest).HasFactory = true;
    }
    census.Territories += Expand(game, random, quotas.Expansion, report.Body);
    Reinforce(game, random, census.Territories);
    StrikeByComputer(game, report.Body);
    if (AttackByComputer(game, random, quotas.Attack, report.Body)) {
        DeclareWinner(game, screens, p, &report);
        return;
    }
    game.ComputerTurnEnded = true;
    screens.RefreshMap();
    screens.ShowReport(report, p);
    player.FirstTurn = false;
}

}  // namespace vorlund
