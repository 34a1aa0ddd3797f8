#include "tests/engine/checks.h"

#include "savegame/format.h"
#include "state/consistent.h"
#include "tests/engine/games.h"

namespace vorlund {

std::optional<std::string> BrokenRecords(const GameState& game) {
    if (!Consistent(game)) {
        return "the records do not agree";
    }
    for (int p = 0; p < game.NumPlayers; ++p) {
        const Player& player = game.PlayerAt(p);
        int troops = 0;
        int tanks = 0;
        int factories = 0;
        for (int t = 0; t < NumTerritories; ++t) {
            if (Owns(game, p, t)) {
                troops += game.TerritoryAt(t).Troops;
                tanks += game.TerritoryAt(t).Tanks;
                factories += game.TerritoryAt(t).HasFactory ? 1 : 0;
            }
        }
        const bool unitsAgree = player.IsComputer || (troops == player.Troops && tanks == player.Tanks);
        if (!player.IsDead && (factories != player.Factories || !unitsAgree)) {
            return "the totals of player " + std::to_string(p + 1) + " are wrong";
        }
    }
    return std::nullopt;
}

std::optional<std::string> BrokenCommands(const GameState& game, CommandSet given) {
    const bool exact = given == CommandSet::None() || given == AvailableCommands(game);
    return exact ? std::nullopt : std::optional<std::string>("not an exact set of commands");
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
