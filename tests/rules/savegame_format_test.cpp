#include "savegame/format.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

#include "savegame/windows1252.h"
#include "state/consistent.h"
#include "tests/rules/savegame_samples.h"

namespace vorlund {
namespace {

/// The game that `bytes` give; a test failure and an empty game when they are refused.
GameState Accepted(const std::string& bytes) {
    const auto result = ReadGame(FreshGame(), bytes);
    if (const auto* const bad = std::get_if<BadFile>(&result)) {
        ADD_FAILURE() << "line " << bad->Line << ": " << bad->What;
        return {};
    }
    return std::get<GameState>(result);
}

/// The sample of two with every field of the second player at a value of its own, true or false by turns.
GameState Distinct() {
    GameState game = SampleGame(2);
    Player& player = game.Players[1];
    player.Name = "Ben";
    player.AttacksLeft = 0;
    player.IsDead = true;  // the writer takes what it is given
    player.DebtTurns = 7;
    player.EconomyLevel = 2;
    player.Factories = 6;
    player.Money = -45;
    player.NuclearLevel = 3;
    player.HasNuke = true;
    player.Oil = 32767;
    player.Tanks = -32768;
    player.Troops = 77;
    player.WarfareLevel = 1;
    player.IsComputer = false;
    Territory& alaska = game.Territories[0];
    alaska.HasFactory = false;
    alaska.HasDefense = true;
    alaska.Tanks = 5;
    game.DeadPlayers = 1;
    return game;
}

TEST(WriteGame, PutsEveryValueOnItsLineInItsForm) {
    const std::string bytes = WriteGame(Distinct());
    const auto lines = [&](int from, int to) {
        return bytes.substr(LineStart(bytes, from), LineStart(bytes, to) - LineStart(bytes, from));
    };
    EXPECT_EQ(lines(1, 2), " 2 \r\n");
    EXPECT_EQ(lines(60, 78),
              " 0 \r\nTrue\r\n 7 \r\n 2 \r\n 6 \r\nFalse\r\n-45 \r\n 2 \r\nBen\r\n 3 \r\nTrue\r\n 32767 \r\n"
              "-32768 \r\n 77 \r\n 1 \r\nFalse\r\nFalse\r\nFalse\r\n");
    EXPECT_EQ(lines(82, 85), "False\r\nTrue\r\nTrue\r\n") << "what Player 2 owns";
    EXPECT_EQ(lines(118, 124), "True\r\nFalse\r\nTrue\r\n 0 \r\n 5 \r\n 10 \r\n");
    EXPECT_EQ(lines(364, 372), "False\r\nFalse\r\nFalse\r\n 9 \r\n 0 \r\n 0 \r\n 0 \r\n 1 \r\n");
    EXPECT_EQ(LineStart(bytes, 372), bytes.size());
}

TEST(ReadGame, GivesBackWhatTheFileCarriesAndLeavesTheRest) {
    for (int players = 2; players <= MaxPlayers; ++players) {
        GameState fresh = FreshGame();
        fresh.StartingPlayer = 1;
        GameState expected = SampleGame(players);
        expected.StartingPlayer = 1;
        expected.GameLoaded = true;
        for (int p = players; p < MaxPlayers; ++p) {
            fresh.PlayerAt(p).Name = expected.PlayerAt(p).Name = "Nobody";
        }
        const std::string bytes = WriteGame(SampleGame(players));
        const auto result = ReadGame(fresh, bytes);
        ASSERT_TRUE(std::holds_alternative<GameState>(result)) << players << " players";
        EXPECT_EQ(std::get<GameState>(result), expected) << players << " players";
        EXPECT_EQ(WriteGame(expected), bytes);
    }
}

constexpr int NameLine = 10;

TEST(PlayerName, ReadsBackOrIsToldBeforehand) {
    struct Row {
        const char* what;
        std::string name;
        std::string line;  // empty: cannot be saved
    };
    const std::vector<Row> rows{
        {"twelve characters of two bytes",
         "\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4", std::string(12, '\xE4')},
        {"euro, the first byte of the code page's own", "\u20AC", "\x80"},
        {"an undefined byte's character", "\u0081", "\x81"},
        {"blanks behind", "Anna  ", "Anna  "},
        {"blanks in front", "  Anna", "\"  Anna\""},
        {"comma", "a,b", "\"a,b\""},
        {"double quote inside", "O\"Neil", "O\"Neil"},
        {"double quote in front", "\"Anna", ""},
        {"double quote and comma", "a\",b", ""},
        {"outside the code page", "\u0416", ""},
        {"a control character that the code page's own byte hides", "\u0080", ""},
        {"tabulator", "a\tb", ""},
        {"delete", "a\x7F", ""},
        {"not UTF-8", "\xE4", ""},
        {"thirteen characters", "abcdefghijklm", ""},
        {"empty", "", ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(NameReadsBack(row.name), !row.line.empty()) << row.what;
        if (!row.line.empty()) {
            GameState game = SampleGame(2);
            game.Players[0].Name = row.name;
            EXPECT_EQ(WriteGame(game), WithLine(game, NameLine, row.line)) << row.what;
            EXPECT_EQ(Accepted(WriteGame(game)).Players[0].Name, row.name) << row.what;
        }
    }
}

TEST(Windows1252, EveryByteIsOneCharacterAndReadsBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string bytes(1, static_cast<char>(byte));
        EXPECT_EQ(ToWindows1252(FromWindows1252(bytes)), bytes) << byte;
    }
    EXPECT_EQ(FromWindows1252("\x80\x8C\x9F\xA0\xFF"), "\u20AC\u0152\u0178\u00A0\u00FF");
    for (const char* const noUtf8 :
         {"\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\x80", "\xE2\x82"}) {
        EXPECT_EQ(ToWindows1252(noUtf8), std::nullopt);
    }
}

TEST(ReadGame, IsPatientWithFormsLineEndsAndWhatFollows) {
    const GameState game = SampleGame(4);
    GameState expected = game;
    expected.GameLoaded = true;
    const std::string bytes = WriteGame(game);
    std::string bare = bytes;
    std::erase(bare, '\r');
    EXPECT_EQ(Accepted(bare), expected);
    EXPECT_EQ(Accepted(bytes.substr(0, bytes.size() - 2)), expected);
    EXPECT_EQ(Accepted(bytes + "\r\nmore\r\n" + std::string(1 << 20, '\n')), expected);
    const std::string late = std::string(MaxSavedGameBytes, ' ') + bytes;
    EXPECT_EQ(std::get<BadFile>(ReadGame(FreshGame(), late)).Line, 1);
    for (const char* const no : {"false", " FALSE ", "0", " 0.0 "}) {
        EXPECT_EQ(Accepted(WithLine(game, 3, no)), expected) << no;
    }
    for (const char* const money : {"-45", "  -45  ", "-045"}) {
        EXPECT_EQ(Accepted(WithLine(game, 8, money)), expected) << money;
    }
    EXPECT_EQ(Accepted(WithLine(game, 8, "+12")).Players[0].Money, 12);
    for (const char* const name : {" Anna", "Anna,Bob", " \"Anna\" x"}) {
        EXPECT_EQ(Accepted(WithLine(game, NameLine, name)), expected) << name;
    }
}

struct BadLine {
    int line;  // of the two-player sample, where `value` is put
    std::string value;
    int badLine;
    std::string what;
};

TEST(ReadGame, RefusesABadFileWithItsLine) {
    const std::string notInt16 = "Money of Player 1 must be a whole number from -32768 to 32767.";
    const std::string noName = "must be 1 to 12 characters that can be shown.";
    const std::string notHuman = "CurrentPlayer of the game must be a living human player.";
    const std::string nobodys = "Montreal Territory belongs to nobody, so nothing can stand in it.";
    const std::vector<BadLine> rows{
        {1, " 1 ", 1, "NumPlayers of the game must be a whole number from 2 to 5."},
        {1, " 6 ", 1, "NumPlayers of the game must be a whole number from 2 to 5."},
        {2, " 3 ", 2, "AttacksLeft of Player 1 must be a whole number from 0 to 2."},
        {3, "Yes", 3, "IsDead of Player 1 must be True or False."},
        {3, "True", 3, "Player 1 owns territories and must be alive."},
        {4, "-1 ", 4, "DebtTurns of Player 1 must be a whole number from 0 to 32767."},
        {5, " 4 ", 5, "EconomyLevel of Player 1 must be a whole number from 0 to 3."},
        {8, "", 8, notInt16},
        {8, " 32768 ", 8, notInt16},
        {8, "99999999999", 8, notInt16},
        {8, "2.5", 8, notInt16},
        {8, "+-5", 8, notInt16},
        {8, "\t5", 8, notInt16},
        {8, "5\xD0", 8, notInt16},
        {9, "-1 ", 9, "MovesLeft of Player 1 must be a whole number from 0 to 2."},
        {10, "abcdefghijklm", 10, "Name of Player 1 " + noName},
        {10, "\"Anna", 10, "Name of Player 1 must be closed by a double quote, as it starts with one."},
        {68, " , 3", 68, "Name of Player 2 " + noName},
        {17, "True", 370, notHuman},
        {18, "False", 18, "Player 1's Owns and the Owner of Alaskan Territory do not agree."},
        {120, "False", 120, "Alaskan Territory must be Occupied when it has an Owner, and only then."},
        {121, " 2 ", 121, "Owner of Alaskan Territory must be a player of this game, or 9 for nobody."},
        {121, "10", 121, "Owner of Alaskan Territory must be a whole number from 0 to 9."},
        {122, "-1 ", 122, "Tanks of Alaskan Territory must be a whole number from 0 to 32767."},
        {130, "True", 130, nobodys},
        {131, "True", 131, nobodys},
        {134, " 1 ", 134, nobodys},
        {135, " 1 ", 135, nobodys},
        {370, " 2 ", 370, "CurrentPlayer of the game must be a whole number from 0 to 1."},
        {370, " 1 ", 370, notHuman},
        {371, " 1 ", 371, "DeadPlayers of the game must be 0."},
    };
    for (const BadLine& row : rows) {
        const auto result = ReadGame(FreshGame(), WithLine(SampleGame(2), row.line, row.value));
        const auto* const bad = std::get_if<BadFile>(&result);
        const std::string put = std::to_string(row.line) + ": " + row.value;
        ASSERT_NE(bad, nullptr) << put;
        EXPECT_EQ(*bad, (BadFile{row.badLine, row.what})) << put << "\n" << bad->Line << ": " << bad->What;
    }
    GameState poor = SampleGame(2);
    Abandon(poor, 7);
    Abandon(poor, 8);
    poor.Territories[7].Troops = 0;
    EXPECT_EQ(std::get<BadFile>(ReadGame(FreshGame(), WriteGame(poor))),
              (BadFile{61, "Player 2 owns no territory and must be dead."}));
    EXPECT_EQ(std::get<BadFile>(ReadGame(FreshGame(), "")),
              (BadFile{1, "The file ends before NumPlayers of the game."}));
}

TEST(ReadGame, RefusesEveryFileThatIsCutShort) {
    for (int players = 2; players <= MaxPlayers; ++players) {
        const std::string bytes = WriteGame(SampleGame(players));
        const std::size_t lastValue = bytes.size() - std::string(" \r\n").size();
        int line = 1;
        for (std::size_t size = 0; size < lastValue; ++size) {
            const auto result = ReadGame(FreshGame(), bytes.substr(0, size));
            const auto* const bad = std::get_if<BadFile>(&result);
            ASSERT_NE(bad, nullptr) << size << " bytes";
            line += size > 0 && bytes[size - 1] == '\n' ? 1 : 0;
            // A value may be whole although its line end is missing, and then the next line is the bad one.
            ASSERT_TRUE(bad->Line == line || bad->Line == line + 1) << size;
        }
    }
}

TEST(ReadGame, TakesAnOddValueOnlyWhereTheGameStaysSound) {
    const GameState game = SampleGame(2);
    for (int line = 1; line <= 255 + 58 * 2; ++line) {
        for (const char* value :
             {"", " ", "0", " 1 ", "-1", "9", "32768", "1e3", "True", "false", "a,b", "\"q\"", "\xE9"}) {
            const auto result = ReadGame(FreshGame(), WithLine(game, line, value));
            if (const auto* const read = std::get_if<GameState>(&result)) {
                ASSERT_TRUE(Consistent(*read) && !read->Current().IsDead) << line << ": " << value;
                ASSERT_EQ(Accepted(WriteGame(*read)), *read) << line << ": " << value;
            } else {
                ASSERT_TRUE(std::get<BadFile>(result).Line >= 1 && !std::get<BadFile>(result).What.empty());
            }
        }
    }
}

}  // namespace
}  // namespace vorlund
