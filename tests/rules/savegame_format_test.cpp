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

TEST(WriteGame, PutsEveryValueOnItsLineInItsForm) {
    GameState game = SampleGame(3);
    Player& player = game.Players[1];
    player.AttacksLeft = 0;
    player.IsDead = true;  // the writer takes what it is given
    player.DebtTurns = 1;
    player.EconomyLevel = 2;
    player.Factories = 3;
    player.FirstTurn = false;
    player.Money = -45;
    player.MovesLeft = 1;
    player.Name = "Anna";
    player.NuclearLevel = 3;
    player.HasNuke = true;
    player.Oil = 32767;
    player.Tanks = -32768;
    player.Troops = 77;
    player.WarfareLevel = 1;
    player.IsComputer = false;
    Territory& territory = game.Territories[8];
    territory.HasDefense = true;
    territory.HasFactory = false;
    territory.Tanks = 5;
    territory.Troops = 60;
    game.CurrentPlayer = 2;
    game.DeadPlayers = 1;
    const std::string bytes = WriteGame(game);
    const std::vector<std::string> lines = LinesOf(bytes);
    const std::vector<std::pair<int, std::string>> rows{
        {1, " 3 "},      {60, " 0 "},     {61, "True"},  {62, " 1 "},    {63, " 2 "},    {64, " 3 "},
        {65, "False"},   {66, "-45 "},    {67, " 1 "},   {68, "Anna"},   {69, " 3 "},    {70, "True"},
        {71, " 32767 "}, {72, "-32768 "}, {73, " 77 "},  {74, " 1 "},    {75, "False"},  {76, "False"},
        {83, "True"},    {84, "True"},    {85, "False"}, {224, "True"},  {225, "False"}, {226, "True"},
        {227, " 1 "},    {228, " 5 "},    {229, " 60 "}, {422, "False"}, {425, " 9 "},   {427, " 0 "},
        {428, " 2 "},    {429, " 1 "},
    };
    ASSERT_EQ(lines.size(), 429U);
    for (const auto& [line, expected] : rows) {
        EXPECT_EQ(lines[static_cast<std::size_t>(line) - 1], expected) << "line " << line;
    }
    EXPECT_EQ(bytes.substr(0, 5), " 3 \r\n");
    EXPECT_TRUE(bytes.ends_with(" 1 \r\n"));
}

TEST(ReadGame, GivesBackTheSavedGameAndTheSameBytesAgain) {
    for (int players = 2; players <= MaxPlayers; ++players) {
        const GameState game = SampleGame(players);
        ASSERT_TRUE(Consistent(game));
        const std::string bytes = WriteGame(game);
        EXPECT_EQ(LinesOf(bytes).size(), static_cast<std::size_t>(255 + 58 * players));
        GameState expected = game;
        expected.GameLoaded = true;
        const GameState loaded = Accepted(bytes);
        EXPECT_EQ(loaded, expected) << players << " players";
        EXPECT_EQ(WriteGame(loaded), bytes);
    }
}

TEST(ReadGame, LeavesWhatTheFileDoesNotCarry) {
    GameState fresh = FreshGame();
    fresh.StartingPlayer = 1;
    fresh.Players[4].Name = "Nobody";
    fresh.Players[4].Money = 3;
    const auto result = ReadGame(fresh, WriteGame(SampleGame(2)));
    GameState expected = SampleGame(2);
    expected.StartingPlayer = 1;
    expected.Players[4].Name = "Nobody";
    expected.Players[4].Money = 3;
    expected.GameLoaded = true;
    EXPECT_EQ(std::get<GameState>(result), expected);
}

constexpr int NameLine = 10;

TEST(PlayerName, ReadsBackOrIsToldBeforehand) {
    struct Row {
        const char* what;
        std::string name;
        std::string line;  // empty: cannot be saved
    };
    const std::vector<Row> rows{
        {"plain", "Anna", "Anna"},
        {"umlaut", "J\u00F6rg", "J\xF6rg"},
        {"euro, the first byte of the code page's own", "\u20AC", "\x80"},
        {"twelve two-byte characters",
         "\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4", std::string(12, '\xE4')},
        {"an undefined byte's character", "\u0081", "\x81"},
        {"blanks behind", "Anna  ", "Anna  "},
        {"blanks in front", "  Anna", "\"  Anna\""},
        {"only blanks", "   ", "\"   \""},
        {"comma", "a,b", "\"a,b\""},
        {"double quote inside", "O\"Neil", "O\"Neil"},
        {"a word that is also a value", "True", "True"},
        {"double quote in front", "\"Anna", ""},
        {"double quote and comma", "a\",b", ""},
        {"double quote behind a leading blank", " \"", ""},
        {"outside the code page", "\u0416", ""},
        {"a control character that the code page's own byte hides", "\u0080", ""},
        {"line end", "a\nb", ""},
        {"tabulator", "a\tb", ""},
        {"delete", "a\x7F", ""},
        {"not UTF-8", "\xE4", ""},
        {"thirteen characters", "abcdefghijklm", ""},
        {"empty", "", ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(NameReadsBack(row.name), !row.line.empty()) << row.what;
        if (row.line.empty()) {
            continue;
        }
        GameState game = SampleGame(2);
        game.Players[0].Name = row.name;
        const std::string bytes = WriteGame(game);
        EXPECT_EQ(LinesOf(bytes)[NameLine - 1], row.line) << row.what;
        EXPECT_EQ(Accepted(bytes).Players[0].Name, row.name) << row.what;
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

TEST(ReadGame, TakesAValueInEachOfItsForms) {
    constexpr int MoneyLine = 8;
    constexpr int HasNukeLine = 12;
    const GameState game = SampleGame(2);
    const std::vector<std::pair<std::string, int>> integers{
        {"7", 7}, {"   7   ", 7}, {"+7", 7}, {"007", 7}, {"-0", 0}, {"-32768", -32768}, {" 32767 ", 32767}};
    for (const auto& [text, value] : integers) {
        EXPECT_EQ(Accepted(WithLine(game, MoneyLine, text)).Players[0].Money, value) << text;
    }
    const std::vector<std::pair<std::string, bool>> booleans{
        {"true", true}, {" TRUE ", true}, {"fAlSe", false}, {"0", false}, {" 0.0 ", false},
        {"-1", true},   {"2", true},      {"0.5", true},    {"1e3", true}};
    for (const auto& [text, value] : booleans) {
        EXPECT_EQ(Accepted(WithLine(game, HasNukeLine, text)).Players[0].HasNuke, value) << text;
    }
    const std::vector<std::pair<std::string, std::string>> names{
        {"  Anna", "Anna"}, {"Anna,Bob", "Anna"}, {" \"Anna\" x", "Anna"}, {"\"a,b\"c\"", "a,b"}};
    for (const auto& [text, value] : names) {
        EXPECT_EQ(Accepted(WithLine(game, NameLine, text)).Players[0].Name, value) << text;
    }
}

TEST(ReadGame, IsPatientWithLineEndsAndWhatFollows) {
    const GameState game = SampleGame(4);
    GameState expected = game;
    expected.GameLoaded = true;
    const std::string bytes = WriteGame(game);
    std::string bare = bytes;
    std::erase(bare, '\r');
    EXPECT_EQ(Accepted(bare), expected);
    EXPECT_EQ(Accepted(bytes.substr(0, bytes.size() - 2)), expected);
    EXPECT_EQ(Accepted(bytes + "\r\nmore\r\n"), expected);
    EXPECT_EQ(Accepted(bytes + std::string(1 << 20, '\n')), expected);
    const std::string late = std::string(MaxSavedGameBytes, ' ') + bytes;
    EXPECT_EQ(std::get<BadFile>(ReadGame(FreshGame(), late)).Line, 1);
}

struct BadLine {
    int line;  // of the two-player sample, where `value` is put
    std::string value;
    int badLine;
    std::string what;
};
const std::string NotInt16 = "must be a whole number from -32768 to 32767.";
const std::vector<BadLine> BadLines{
    {1, " 1 ", 1, "NumPlayers of the game must be a whole number from 2 to 5."},
    {1, " 6 ", 1, "NumPlayers of the game must be a whole number from 2 to 5."},
    {1, "", 1, "NumPlayers of the game must be a whole number from 2 to 5."},
    {2, " 3 ", 2, "AttacksLeft of Player 1 must be a whole number from 0 to 2."},
    {3, "Yes", 3, "IsDead of Player 1 must be True or False."},
    {3, "True", 3, "Player 1 owns territories and must be alive."},
    {4, "-1 ", 4, "DebtTurns of Player 1 must be a whole number from 0 to 32767."},
    {5, " 4 ", 5, "EconomyLevel of Player 1 must be a whole number from 0 to 3."},
    {7, "", 7, "FirstTurn of Player 1 must be True or False."},
    {8, " 32768 ", 8, "Money of Player 1 " + NotInt16},
    {8, "99999999999", 8, "Money of Player 1 " + NotInt16},
    {8, "2.5", 8, "Money of Player 1 " + NotInt16},
    {8, "+-5", 8, "Money of Player 1 " + NotInt16},
    {8, "1 2", 8, "Money of Player 1 " + NotInt16},
    {8, "\t5", 8, "Money of Player 1 " + NotInt16},
    {8, "5\xD0", 8, "Money of Player 1 " + NotInt16},
    {9, "-1 ", 9, "MovesLeft of Player 1 must be a whole number from 0 to 2."},
    {10, "", 10, "Name of Player 1 must be 1 to 12 characters that can be shown."},
    {10, "abcdefghijklm", 10, "Name of Player 1 must be 1 to 12 characters that can be shown."},
    {10, "a\tb", 10, "Name of Player 1 must be 1 to 12 characters that can be shown."},
    {10, "\"Anna", 10, "Name of Player 1 must be closed by a double quote, as it starts with one."},
    {68, " , 3", 68, "Name of Player 2 must be 1 to 12 characters that can be shown."},
    {17, "True", 371 - 1, "CurrentPlayer of the game must be a living human player."},
    {18, "False", 18, "Player 1's Owns and the Owner of Alaskan Territory do not agree."},
    {25, "True", 25, "Player 1's Owns and the Owner of Eastern USA do not agree."},
    {118, "nan", 118, "HasDefense of Alaskan Territory must be True or False."},
    {120, "False", 120, "Alaskan Territory must be Occupied when it has an Owner, and only then."},
    {121, " 9 ", 120, "Alaskan Territory must be Occupied when it has an Owner, and only then."},
    {121, " 2 ", 121, "Owner of Alaskan Territory must be a player of this game, or 9 for nobody."},
    {121, " 1 ", 18, "Player 1's Owns and the Owner of Alaskan Territory do not agree."},
    {121, "10", 121, "Owner of Alaskan Territory must be a whole number from 0 to 9."},
    {122, "-1 ", 122, "Tanks of Alaskan Territory must be a whole number from 0 to 32767."},
    {130, "True", 130, "Montreal Territory belongs to nobody, so nothing can stand in it."},
    {131, "True", 131, "Montreal Territory belongs to nobody, so nothing can stand in it."},
    {134, " 1 ", 134, "Montreal Territory belongs to nobody, so nothing can stand in it."},
    {135, " 1 ", 135, "Montreal Territory belongs to nobody, so nothing can stand in it."},
    {370, " 2 ", 370, "CurrentPlayer of the game must be a whole number from 0 to 1."},
    {370, " 1 ", 370, "CurrentPlayer of the game must be a living human player."},
    {371, " 1 ", 371, "DeadPlayers of the game must be 0."},
};

TEST(ReadGame, RefusesABadFileWithItsLine) {
    const GameState game = SampleGame(2);
    for (const BadLine& row : BadLines) {
        const auto result = ReadGame(FreshGame(), WithLine(game, row.line, row.value));
        const auto* const bad = std::get_if<BadFile>(&result);
        const std::string put = std::to_string(row.line) + ": " + row.value;
        ASSERT_NE(bad, nullptr) << put;
        EXPECT_EQ(bad->Line, row.badLine) << put;
        EXPECT_EQ(bad->What, row.what) << put;
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

/// An accepted file must give a sound game that can be saved and loaded again as it is; a refused one must
/// name a line that a file of five players can have.
void ExpectSoundOrRefused(const std::string& bytes, const std::string& what) {
    const auto result = ReadGame(FreshGame(), bytes);
    if (const auto* const bad = std::get_if<BadFile>(&result)) {
        EXPECT_TRUE(bad->Line >= 1 && bad->Line <= 545 && !bad->What.empty()) << what;
        return;
    }
    const GameState& game = std::get<GameState>(result);
    EXPECT_TRUE(Consistent(game)) << what;
    EXPECT_FALSE(game.Current().IsDead || game.Current().IsComputer) << what;
    EXPECT_EQ(Accepted(WriteGame(game)), game) << what;
}

TEST(ReadGame, RefusesEveryFileThatIsCutShort) {
    for (int players = 2; players <= MaxPlayers; ++players) {
        const std::string bytes = WriteGame(SampleGame(players));
        const std::size_t lastValue = bytes.size() - std::string(" \r\n").size();
        int line = 1;
        for (std::size_t size = 0; size < lastValue; ++size) {
            const auto result = ReadGame(FreshGame(), bytes.substr(0, size));
            const auto* const bad = std::get_if<BadFile>(&result);
            ASSERT_NE(bad, nullptr) << players << " players, " << size << " bytes";
            line += size > 0 && bytes[size - 1] == '\n' ? 1 : 0;
            // A value may be whole although its line end is missing, and then the next line is the bad one.
            ASSERT_TRUE(bad->Line == line || bad->Line == line + 1) << size;
        }
        for (std::size_t size = lastValue; size < bytes.size(); ++size) {
            Accepted(bytes.substr(0, size));
        }
    }
}

TEST(ReadGame, StandsOddValuesInEveryLine) {
    const std::vector<std::string> odd{"",
                                       " ",
                                       "x",
                                       " 0 ",
                                       " 1 ",
                                       "-1 ",
                                       " 9 ",
                                       " 32767 ",
                                       "-32768 ",
                                       " 32768 ",
                                       "True",
                                       "FALSE",
                                       "2.5",
                                       "1e3",
                                       "\"",
                                       "\"\"",
                                       "\" , \"",
                                       ",",
                                       "inf",
                                       std::string(1, '\0'),
                                       std::string(5000, '7')};
    for (int players = 2; players <= MaxPlayers; ++players) {
        const std::string bytes = WriteGame(SampleGame(players));
        std::size_t line = 0;
        for (std::size_t begin = 0, end = 0; begin < bytes.size(); begin = end + 2, ++line) {
            end = bytes.find("\r\n", begin);
            // All of them in the smallest file, one a line in the others
            for (std::size_t i = 0; i < (players == 2 ? odd.size() : 1); ++i) {
                const std::string& value = odd[(i + line) % odd.size()];
                ExpectSoundOrRefused(bytes.substr(0, begin) + value + bytes.substr(end),
                                     "line " + std::to_string(line + 1) + ": " + value);
            }
        }
    }
}

}  // namespace
}  // namespace vorlund
