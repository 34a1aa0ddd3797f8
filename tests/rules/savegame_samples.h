#pragma once

#include <string>
#include <vector>

#include "savegame/format.h"
#include "state/game_state.h"
#include "state/ownership.h"
#include "state/world.h"

namespace vorlund {

inline GameState FreshGame() {
    GameState game;
    InitWorld(game);
    return game;
}

/// A game under way between `players` players, 2 to 5: the second is a computer player, the last of four or
/// five is dead, names are awkward.
inline GameState SampleGame(int players) {
    static const std::vector<std::string> names{"Anna", "CompPlayer2", "  Jörg, \u20AC", "O\"Neil", " "};
    GameState game = FreshGame();
    game.NumPlayers = static_cast<std::int16_t>(players);
    game.CurrentPlayer = 0;
    for (int p = 0; p < players; ++p) {
        Player& player = game.PlayerAt(p);
        player.Name = names[static_cast<std::size_t>(p)];
        player.Money = static_cast<std::int16_t>(p == 0 ? -45 : 9000 + p);
        player.Oil = static_cast<std::int16_t>(30 * p);
        player.Troops = static_cast<std::int16_t>(10 + p);
        player.AttacksLeft = 1;
        player.MovesLeft = 2;
        if (p >= 3 && p == players - 1) {
            player.IsDead = true;
            player.DebtTurns = 3;
            ++game.DeadPlayers;
            continue;
        }
        Claim(game, 7 * p, p);
        Claim(game, 7 * p + 1, p);
        game.TerritoryAt(7 * p).Troops = player.Troops;
        game.TerritoryAt(7 * p).HasFactory = true;
        game.TerritoryAt(7 * p + 1).HasDefense = true;
        player.Factories = 1;
    }
    Player& computer = game.PlayerAt(1);
    computer.IsComputer = true;
    computer.Troops = -12;
    computer.Tanks = -1;
    computer.FirstTurn = false;
    return game;
}

inline std::vector<std::string> LinesOf(const std::string& bytes) {
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < bytes.size();) {
        const std::size_t end = bytes.find("\r\n", begin);
        lines.push_back(bytes.substr(begin, end - begin));
        begin = end == std::string::npos ? bytes.size() : end + 2;
    }
    return lines;
}

inline std::string Join(const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line + "\r\n";
    }
    return bytes;
}

/// The file of `game` with `value` as its line number `line`.
inline std::string WithLine(const GameState& game, int line, const std::string& value) {
    std::vector<std::string> lines = LinesOf(WriteGame(game));
    lines.at(static_cast<std::size_t>(line) - 1) = value;
    return Join(lines);
}

}  // namespace vorlund
