// SPDX-License-Identifier: MIT
#include "state/world.h"

#include <algorithm>

namespace vorlund {
namespace {

constexpr std::int16_t X = NoNeighbour;

constexpr std::array<WorldEntry, NumTerritories> Table{{
    // clang-format off
    {"Alaskan Territory", 6, 86, 62, true, {1, 28, X, X, X, X}},
    {"Vancouver Territory", 6, 111, 80, false, {0, 2, 5, 6, X, X}},
    {"Montreal Territory", 6, 136, 84, false, {1, 3, 6, 7, X, X}},
    {"Quebec Territory", 6, 200, 87, false, {2, 7, 4, X, X, X}},
    {"Greenland", 6, 280, 47, false, {3, 15, X, X, X, X}},
    {"Western USA", 7, 81, 131, false, {1, 6, 8, X, X, X}},
    {"Midwest USA", 7, 110, 134, true, {1, 2, 5, 7, 8, X}},
    {"Eastern USA", 7, 144, 136, false, {2, 3, 6, 10, X, X}},
    {"Mexico", 6, 92, 166, false, {5, 6, 9, X, X, X}},
    {"Central America", 6, 118, 192, false, {8, 10, 11, X, X, X}},
    {"Caribbean", 6, 150, 175, false, {7, 9, 11, X, X, X}},
    {"Colombian Territory", 6, 169, 206, false, {9, 10, 12, 13, X, X}},
    {"Peruvian Territory", 6, 155, 255, false, {11, 13, 14, X, X, X}},
    {"Brazilian Territory", 6, 206, 250, false, {11, 12, 14, 22, X, X}},
    {"Argentinian Territory", 6, 195, 294, false, {12, 13, X, X, X, X}},
    {"England", 6, 315, 103, false, {4, 17, X, X, X, X}},
    {"Spain", 6, 312, 135, false, {22, 17, 23, X, X, X}},
    {"French Territory", 6, 335, 124, false, {15, 16, 19, X, X, X}},
    {"Scandanavian Territory", 6, 376, 74, false, {19, 20, 28, 29, X, X}},
    {"German Territory", 7, 360, 122, false, {17, 18, 20, 21, 23, X}},
    {"Polish Territory", 6, 385, 108, false, {18, 19, 29, X, X, X}},
    {"Turkish Territory", 6, 412, 142, false, {19, 23, 27, 29, 31, X}},
    {"Western Africa", 6, 316, 182, false, {16, 23, 24, 13, X, X}},
    {"Northern Africa", 6, 374, 162, false, {16, 19, 21, 27, 22, 24}},
    {"Middle Africa", 6, 392, 199, false, {22, 23, 25, 27, X, X}},
    {"Southern Africa", 6, 382, 243, false, {24, 26, X, X, X, X}},
    {"South Africa", 6, 381, 285, false, {25, X, X, X, X, X}},
    {"Suadi Arabian Territory", 6, 427, 172, true, {21, 23, 24, 31, X, X}},
    {"Northern Russia", 6, 508, 69, true, {18, 29, 30, 32, 33, 0}},
    {"Ukranian Territory", 6, 410, 108, false, {18, 20, 21, 28, 30, X}},
    {"Western Russia", 6, 460, 106, false, {28, 29, 31, 32, 35, X}},
    {"Middle East", 6, 466, 148, true, {21, 27, 30, 35, 36, X}},
    {"Eastern Russia", 6, 532, 100, true, {28, 30, 35, 33, X, X}},
    {"Manchurian Territory", 6, 588, 111, false, {28, 32, 34, 35, X, X}},
    {"Japan", 7, 636, 127, false, {33, X, X, X, X, X}},
    {"China", 7, 554, 144, false, {30, 31, 32, 33, 36, 37}},
    {"India", 7, 504, 174, false, {31, 35, 37, X, X, X}},
    {"Southern Asia", 6, 550, 180, false, {35, 36, 38, X, X, X}},
    {"Indonesian Territory", 6, 602, 227, false, {37, 39, 40, X, X, X}},
    {"New Guinean Territory", 6, 660, 240, false, {38, 41, X, X, X, X}},
    {"Western Australia", 6, 600, 288, false, {38, 41, X, X, X, X}},
    {"Eastern Australia", 6, 640, 294, false, {39, 40, X, X, X, X}},  // clang-format on
}};

constexpr bool HasNeighbour(const WorldEntry& entry, std::size_t index) {
    return std::find(entry.Neighbours.begin(), entry.Neighbours.end(), static_cast<std::int16_t>(index)) !=
           entry.Neighbours.end();
}

constexpr bool NeighboursAreMutual() {
    for (std::size_t a = 0; a < Table.size(); ++a) {
        for (std::size_t b = 0; b < Table.size(); ++b) {
            if (HasNeighbour(Table[a], b) != HasNeighbour(Table[b], a) ||
                (a == b && HasNeighbour(Table[a], b))) {
                return false;
            }
        }
    }
    return true;
}

static_assert(NeighboursAreMutual());
static_assert(std::count_if(Table.begin(), Table.end(), [](const WorldEntry& e) { return e.HasOil; }) == 6);
static_assert(std::count_if(Table.begin(), Table.end(), [](const WorldEntry& e) { return e.Value == 7; }) ==
              7);
static_assert(std::count_if(Table.begin(), Table.end(), [](const WorldEntry& e) { return e.Value == 6; }) ==
              35);

bool IsTerritory(int index) {
    return index >= 0 && index < NumTerritories;
}

}  // namespace

constexpr std::array<WorldEntry, NumTerritories> World = Table;

void InitWorld(GameState& game) {
    for (std::size_t t = 0; t < World.size(); ++t) {
        const WorldEntry& entry = World[t];
        Territory territory;
        territory.Name = entry.Name;
        territory.Value = entry.Value;
        territory.MapX = entry.MapX;
        territory.MapY = entry.MapY;
        territory.Neighbours = entry.Neighbours;
        territory.HasOil = entry.HasOil;
        game.Territories[t] = territory;
    }
    for (Player& player : game.Players) {
        Player cleared;
        cleared.Name = player.Name;
        cleared.Money = player.Money;
        cleared.Oil = player.Oil;
        cleared.Factories = player.Factories;
        cleared.MovesLeft = player.MovesLeft;
        cleared.AttacksLeft = player.AttacksLeft;
        player = cleared;
    }
}

void ResetGame(GameState& game) {
    game.GameOver = false;
    game.ComputerTurnEnded = false;
    InitWorld(game);
}

bool CanReach(const GameState& game, bool isAttack, int from, int to) {
    if (!IsTerritory(from) || !IsTerritory(to) || from == to) {
        return false;
    }
    if (!Owns(game, game.CurrentPlayer, from)) {
        return false;
    }
    const bool ownsTarget = Owns(game, game.CurrentPlayer, to);
    const bool occupied = game.TerritoryAt(to).Occupied;
    if (isAttack ? (!occupied || ownsTarget) : (!ownsTarget && occupied)) {
        return false;
    }
    const auto& neighbours = game.TerritoryAt(from).Neighbours;
    return std::find(neighbours.begin(), neighbours.end(), to) != neighbours.end();
}

}  // namespace vorlund
