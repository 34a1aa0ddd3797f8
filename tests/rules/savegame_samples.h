#pragma once

#include <string>
#include <vector>

#include "savegame/format.h"
#include "tests/engine/games.h"
#include "tests/rules/small_worlds.h"

namespace vorlund {

/// A game under way between `players` players, 2 to 5: the second is a computer player, the last of four or
/// five is dead, names are awkward.
inline GameState SampleGame(int players) {
    static constexpr const char* Names[] = {"Anna", "CompPlayer2", "  J\u00F6rg, \u20AC", "O\"Neil", " "};
    GameState game = NewGame(players);
    for (int p = 0; p < players; ++p) {
        Player& player = game.PlayerAt(p);
        player.Name = Names[p];
        player.Money = static_cast<std::int16_t>(p == 0 ? -45 : 9000 + p);
        player.Oil = static_cast<std::int16_t>(30 * p);
        player.AttacksLeft = 1;
        player.FirstTurn = p != 1;
        if (p >= 3 && p == players - 1) {
            player.DebtTurns = 3;
            Bury(game, p);
            continue;
        }
        Give(game, 7 * p, p, 10 + p);
        GiveFactory(game, 7 * p);
        Give(game, 7 * p + 1, p, 0);
        game.TerritoryAt(7 * p + 1).HasDefense = true;
    }
    Player& computer = game.PlayerAt(1);
    computer.IsComputer = true;
    computer.Troops = -12;
    computer.Tanks = -1;
    return game;
}

/// Where line number `line`, counted from 1, of a written game begins; the one after the last is its end.
inline std::size_t LineStart(const std::string& bytes, int line) {
    std::size_t begin = 0;
    while (--line > 0) {
        begin = bytes.find('\n', begin) + 1;
    }
    return begin;
}

/// The file of `game` with `value` as its line number `line`.
inline std::string WithLine(const GameState& game, int line, const std::string& value) {
    std::string bytes = WriteGame(game);
    const std::size_t begin = LineStart(bytes, line);
    return bytes.replace(begin, LineStart(bytes, line + 1) - 2 - begin, value);
}

}  // namespace vorlund
