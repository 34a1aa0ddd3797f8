#include "tests/engine/checks.h"

#include "savegame/format.h"
#include "state/consistent.h"
#include "tests/engine/games.h"

namespace vorlund {
namespace {

struct Sums {
    int Troops = 0;
    int Tanks = 0;
    int Factories = 0;
};

Sums SumsOf(const GameState& game, int player) {
    Sums sums;
    for (int t = 0; t < NumTerritories; ++t) {
        if (Owns(game, player, t)) {
            sums.Troops += game.TerritoryAt(t).Troops;
            sums.Tanks += game.TerritoryAt(t).Tanks;
            sums.Factories += game.TerritoryAt(t).HasFactory ? 1 : 0;
        }
    }
    return sums;
}

}  // namespace

std::optional<std::string> BrokenRecords(const GameState& game) {
    if (!Consistent(game)) {
        return "the records do not agree";
    }
    for (int p = 0; p < game.NumPlayers; ++p) {
        const Player& player = game.PlayerAt(p);
        if (player.IsDead) {
            continue;
        }
        const Sums sums = SumsOf(game, p);
        const std::string who = "player " + std::to_string(p + 1);
        if (sums.Factories != player.Factories) {
            return who + " has " + std::to_string(sums.Factories) + " factories and counts " +
                   std::to_string(player.Factories);
        }
        if (!player.IsComputer && (sums.Troops != player.Troops || sums.Tanks != player.Tanks)) {
            return who + " has " + std::to_string(sums.Troops) + "/" + std::to_string(sums.Tanks) +
                   " troops/tanks and counts " + std::to_string(player.Troops) + "/" +
                   std::to_string(player.Tanks);
        }
    }
    return std::nullopt;
}

std::optional<std::string> BrokenCommands(const GameState& game, CommandSet given) {
    // Spelled out rather than asked of AvailableCommands, which gave the set.
    CommandSet expected;
    if (given == expected) {
        return std::nullopt;
    }
    if (game.GameOver) {
        return "commands are available after the end of the game";
    }
    for (const Command command : AllCommands) {
        const bool blocked = command == Command::Attack && game.Current().FirstTurn;
        if (command == Command::EndTurn || (!game.Current().IsDead && !blocked)) {
            expected = expected.With(command);
        }
    }
    return given == expected ? std::nullopt : std::optional<std::string>("not an exact set of commands");
}

std::optional<std::string> BrokenSaving(const GameState& game) {
    const std::string bytes = WriteGame(game);
    const auto read = ReadGame(FreshGame(), bytes);
    if (const auto* bad = std::get_if<BadFile>(&read)) {
        return "the saved game is refused at line " + std::to_string(bad->Line) + ": " + bad->What;
    }
    GameState loaded = std::get<GameState>(read);
    if (WriteGame(loaded) != bytes) {
        return "the loaded game saves differently";
    }
    // What a saved game does not carry; records of nobody hold what a refused setup left there.
    loaded.GameLoaded = game.GameLoaded;
    loaded.StartingPlayer = game.StartingPlayer;
    for (int p = game.NumPlayers; p < MaxPlayers; ++p) {
        loaded.PlayerAt(p) = game.PlayerAt(p);
    }
    return loaded == game ? std::nullopt : std::optional<std::string>("the loaded game is another");
}

}  // namespace vorlund
