#pragma once

#include <array>
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

/// What differs between two states of a game: "7 Ben 10/3 FD; Ben Troops 10 Tanks 3" is a territory by its
/// number with owner, troops, tanks, factory and defense, and a player's fields with what they have become.
inline std::string Changes(const GameState& before, const GameState& after) {
    std::string changes;
    for (int t = 0; t < NumTerritories; ++t) {
        const Territory& now = after.TerritoryAt(t);
        if (now != before.TerritoryAt(t)) {
            changes += "; " + std::to_string(t + 1) + " " +
                       (now.Owner == NoOwner ? "nobody" : after.PlayerAt(now.Owner).Name) + " " +
                       std::to_string(now.Troops) + "/" + std::to_string(now.Tanks) +
                       (now.HasFactory || now.HasDefense ? " " : "") + (now.HasFactory ? "F" : "") +
                       (now.HasDefense ? "D" : "");
        }
    }
    for (int p = 0; p < after.NumPlayers; ++p) {
        const Player& was = before.PlayerAt(p);
        const Player& is = after.PlayerAt(p);
        std::string fields;
        const auto compare = [&](const char* name, auto field) {
            fields +=
                was.*field == is.*field ? "" : std::string(" ") + name + " " + std::to_string(is.*field);
        };
        compare("Money", &Player::Money);
        compare("Oil", &Player::Oil);
        compare("Troops", &Player::Troops);
        compare("Tanks", &Player::Tanks);
        compare("Factories", &Player::Factories);
        compare("EconomyLevel", &Player::EconomyLevel);
        compare("WarfareLevel", &Player::WarfareLevel);
        compare("NuclearLevel", &Player::NuclearLevel);
        compare("DebtTurns", &Player::DebtTurns);
        compare("MovesLeft", &Player::MovesLeft);
        compare("AttacksLeft", &Player::AttacksLeft);
        compare("HasNuke", &Player::HasNuke);
        compare("FirstTurn", &Player::FirstTurn);
        compare("IsDead", &Player::IsDead);
        changes += fields.empty() ? "" : "; " + is.Name + fields;
    }
    return changes.empty() ? changes : changes.substr(2);
}

}  // namespace vorlund
