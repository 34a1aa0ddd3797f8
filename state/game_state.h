// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "state/units.h"

namespace vorlund {

inline constexpr int NumTerritories = 42;
inline constexpr int MinPlayers = 2;
inline constexpr int MaxPlayers = 5;
inline constexpr int NeighbourSlots = 6;
inline constexpr std::int16_t MaxLevel = 3;      ///< of an upgrade; it starts at 0
inline constexpr std::int16_t NoOwner = 9;       ///< in Territory::Owner: nobody owns it
inline constexpr std::int16_t NoNeighbour = 99;  ///< in a neighbour slot: the slot is empty

/// One of the 42 territories. Players see the number index + 1.
struct Territory {
    // Fixed by the world map
    std::string_view Name;
    std::int16_t Value = 0;  ///< 6 or 7; sets the income of its owner
    std::int16_t MapX = 0;   ///< the marker's place on the board, pixels
    std::int16_t MapY = 0;
    std::array<std::int16_t, NeighbourSlots> Neighbours{};
    bool HasOil = false;

    // Changed by play
    std::int16_t Owner = NoOwner;
    Units Stationed;
    bool HasDefense = false;
    bool Occupied = false;
    bool HasFactory = false;

    bool operator==(const Territory&) const = default;
};

/// One of up to five players. Texts say "Player " + (index + 1).
struct Player {
    std::string Name;  ///< UTF-8

    // Running totals over all territories. Units that a computer player creates are not added to its total
    // but its losses are subtracted, so the total may become negative.
    Units Total;
    std::int16_t Factories = 0;
    std::array<bool, NumTerritories> Owns{};

    // Upgrade levels, 0 to 3
    std::int16_t WarfareLevel = 0;
    std::int16_t EconomyLevel = 0;
    std::int16_t NuclearLevel = 0;

    // Treasury: dollars and barrels
    std::int16_t Money = 0;
    std::int16_t Oil = 0;
    std::int16_t DebtTurns = 0;  ///< number of upkeeps that have ended in debt; never decreases

    // This turn
    std::int16_t MovesLeft = 0;
    std::int16_t AttacksLeft = 0;
    bool HasNuke = false;
    bool FirstTurn = true;  ///< Attack is not available

    bool IsDead = false;
    bool IsComputer = false;

    bool operator==(const Player&) const = default;
};

/// The whole game as one value. The program owns exactly one; rules take it by reference.
struct GameState {
    // The players and whose turn it is
    std::int16_t NumPlayers = 0;
    std::int16_t CurrentPlayer = 0;
    std::int16_t StartingPlayer = 0;  ///< selects first and takes the first turn
    std::int16_t DeadPlayers = 0;

    // Progress
    bool ComputerTurnEnded = false;  ///< the report on screen is that of a computer player's turn
    bool GameLoaded = false;         ///< the board opens with a loaded game, not with a first turn
    bool GameOver = false;           ///< ended, with or without a winner

    std::array<Territory, NumTerritories> Territories{};
    std::array<Player, MaxPlayers> Players{};

    bool operator==(const GameState&) const = default;

    Territory& TerritoryAt(int index) { return Territories[static_cast<std::size_t>(index)]; }
    const Territory& TerritoryAt(int index) const { return Territories[static_cast<std::size_t>(index)]; }
    Player& PlayerAt(int index) { return Players[static_cast<std::size_t>(index)]; }
    const Player& PlayerAt(int index) const { return Players[static_cast<std::size_t>(index)]; }
    Player& Current() { return PlayerAt(CurrentPlayer); }
    const Player& Current() const { return PlayerAt(CurrentPlayer); }
};

/// True when player `player` owns territory index `territory`; both must be in range.
inline bool Owns(const GameState& game, int player, int territory) {
    return game.PlayerAt(player).Owns[static_cast<std::size_t>(territory)];
}

}  // namespace vorlund
