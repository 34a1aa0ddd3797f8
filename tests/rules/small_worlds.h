#pragma once

#include <cstdint>
#include <string>

#include "state/game_state.h"
#include "state/int16.h"
#include "state/ownership.h"
#include "state/world.h"

namespace vorlund {

/// A game of `players` humans called Anna, Ben, Cleo, Dora and Emil in which player 0 has the turn, everybody
/// is past the first turn, and nobody owns anything yet.
inline GameState NewGame(int players) {
    static constexpr const char* Names[] = {"Anna", "Ben", "Cleo", "Dora", "Emil"};
    GameState game;
    InitWorld(game);
    game.NumPlayers = static_cast<std::int16_t>(players);
    for (int p = 0; p < players; ++p) {
        game.PlayerAt(p).Name = Names[p];
        game.PlayerAt(p).FirstTurn = false;
        game.PlayerAt(p).AttacksLeft = 2;
        game.PlayerAt(p).MovesLeft = 2;
    }
    return game;
}

/// Gives territory index `t` with these units to `player`, whose totals grow by them.
inline void Give(GameState& game, int t, int player, int troops, int tanks = 0) {
    Claim(game, t, player);
    game.TerritoryAt(t).Troops = ClampInt16(troops);
    game.TerritoryAt(t).Tanks = ClampInt16(tanks);
    Add(game.PlayerAt(player).Troops, troops);
    Add(game.PlayerAt(player).Tanks, tanks);
}

inline void GiveFactory(GameState& game, int t) {
    game.TerritoryAt(t).HasFactory = true;
    Add(game.PlayerAt(game.TerritoryAt(t).Owner).Factories, 1);
}

/// Kills a player who owns nothing.
inline void Bury(GameState& game, int player) {
    game.PlayerAt(player).IsDead = true;
    ++game.DeadPlayers;
}

}  // namespace vorlund
