// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <variant>

#include "state/int16.h"
#include "state/ownership.h"
#include "state/world.h"

namespace vorlund {

/// Gives territory index `t` with these units to `player`, whose totals grow by them.
inline void Give(GameState& game, int t, int player, int troops, int tanks = 0) {
    Claim(game, t, player);
    const Units units{ClampInt16(troops), ClampInt16(tanks)};
    game.TerritoryAt(t).Stationed = units;
    Add(game.PlayerAt(player).Total, units);
}

inline void GiveFactory(GameState& game, int t) {
    game.TerritoryAt(t).HasFactory = true;
    Add(game.PlayerAt(game.TerritoryAt(t).Owner).Factories, 1);
}

using PlayerField = std::variant<std::int16_t Player::*, bool Player::*, std::int16_t Units::*>;

template <typename PlayerType, typename Class, typename Value>
auto& In(PlayerType& player, Value Class::*field) {
    if constexpr (std::is_same_v<Class, Units>) {
        return player.Total.*field;
    } else {
        return player.*field;
    }
}

inline const std::map<std::string, PlayerField> PlayerFields{
    {"Money", &Player::Money},           {"Oil", &Player::Oil},
    {"Troops", &Units::Troops},          {"Tanks", &Units::Tanks},
    {"Factories", &Player::Factories},   {"EconomyLevel", &Player::EconomyLevel},
    {"DebtTurns", &Player::DebtTurns},   {"WarfareLevel", &Player::WarfareLevel},
    {"MovesLeft", &Player::MovesLeft},   {"NuclearLevel", &Player::NuclearLevel},
    {"HasNuke", &Player::HasNuke},       {"AttacksLeft", &Player::AttacksLeft},
    {"FirstTurn", &Player::FirstTurn},   {"IsDead", &Player::IsDead},
    {"IsComputer", &Player::IsComputer},
};

/// The differences between two states of a game. "7 Ben 10/3FD; Ben Tanks 3 Troops 10" means: territory 7 has
/// changed and now has this owner, 10 troops, 3 tanks, a factory and a defense; two of Ben's fields have
/// these new values.
inline std::string Changes(const GameState& before, const GameState& after) {
    std::ostringstream changes;
    const char* separator = "";
    for (int t = 0; t < NumTerritories; ++t) {
        const Territory& now = after.TerritoryAt(t);
        if (now != before.TerritoryAt(t)) {
            changes << std::exchange(separator, "; ") << t + 1 << " "
                    << (now.Occupied ? after.PlayerAt(now.Owner).Name : "nobody") << " "
                    << now.Stationed.Troops << "/" << now.Stationed.Tanks << (now.HasFactory ? "F" : "")
                    << (now.HasDefense ? "D" : "");
        }
    }
    for (int p = 0; p < after.NumPlayers; ++p) {
        std::string who = after.PlayerAt(p).Name;
        for (const auto& [name, member] : PlayerFields) {
            const auto addField = [&, &field = name](auto value) {
                if (In(after.PlayerAt(p), value) != In(before.PlayerAt(p), value)) {
                    changes << (who.empty() ? "" : std::exchange(separator, "; ")) << std::exchange(who, "")
                            << " " << field << " " << In(after.PlayerAt(p), value);
                }
            };
            std::visit(addField, member);
        }
    }
    return changes.str();
}

/// Applies `world`, in the notation of Changes, to `game`. A territory that already has an owner is not
/// changed.
inline void Put(GameState& game, std::string world) {
    std::replace(world.begin(), world.end(), ';', ' ');
    std::istringstream words(world);
    int t = 0;
    int p = 0;
    const auto readField = [&](auto field) { words >> In(game.PlayerAt(p), field); };
    for (std::string word; words >> word;) {
        const auto slash = word.find('/');
        if (PlayerFields.contains(word)) {
            std::visit(readField, PlayerFields.at(word));
        } else if (word[0] > '9') {
            p = word[0] - 'A';  // the names begin with A, B, C ...
        } else if (slash == std::string::npos) {
            t = std::stoi(word) - 1;
        } else if (!game.TerritoryAt(t).Occupied) {
            Give(game, t, p, std::stoi(word), std::stoi(word.substr(slash + 1)));
            game.TerritoryAt(t).HasFactory = word.find('F') != std::string::npos;
            game.TerritoryAt(t).HasDefense = word.ends_with('D');
            Add(game.PlayerAt(p).Factories, game.TerritoryAt(t).HasFactory ? 1 : 0);
        }
    }
    const auto isDead = [](const Player& player) { return player.IsDead; };
    game.DeadPlayers =
        static_cast<std::int16_t>(std::count_if(game.Players.begin(), game.Players.end(), isDead));
}

/// A game of `players` humans called Anna, Ben, Cleo, Dora and Emil after their first turns, in which Anna
/// has the turn and territories belong to players as `world` says.
inline GameState NewGame(int players, const std::string& world = "") {
    static constexpr const char* Names[] = {"Anna", "Ben", "Cleo", "Dora", "Emil"};
    GameState game;
    InitWorld(game);
    game.NumPlayers = static_cast<std::int16_t>(players);
    for (int p = 0; p < players; ++p) {
        game.PlayerAt(p).Name = Names[p];
        game.PlayerAt(p).FirstTurn = false;
        game.PlayerAt(p).AttacksLeft = game.PlayerAt(p).MovesLeft = 2;
    }
    Put(game, world);
    return game;
}

}  // namespace vorlund
