// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <numeric>

#include "savegame/format.h"
#include "savegame/game_name.h"
#include "savegame/windows1252.h"
#include "tests/engine/games.h"
#include "tests/fuzz/inputs.h"
#include "tests/rules/small_worlds.h"

namespace vorlund {
namespace {

namespace fs = std::filesystem;

const std::string Sample =
    "1 Anna 10/0F; 2 Anna 0/0D; 8 Ben 11/0F; Anna Money -45; Ben IsComputer 1 Tanks -1";

std::string Content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The sample's file with line `changed` replaced by `value`.
std::string WithLine(int changed, const std::string& value) {
    std::istringstream file(WriteGame(NewGame(2, Sample)));
    std::string bytes;
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        bytes += (++number == changed ? value + "\r" : line) + "\n";
    }
    return bytes;
}

/// The result of reading a file: the bad line and its fault, or the differences from the sample.
std::string Read(const std::string& bytes) {
    const auto result = ReadGame(FreshGame(), bytes);
    const auto* const bad = std::get_if<BadFile>(&result);
    return bad != nullptr ? std::to_string(bad->Line) + ": " + bad->What
                          : Changes(NewGame(2, Sample), std::get<GameState>(result));
}

TEST(WriteGame, WritesEveryFieldInItsLineAndForm) {
    // Each number of Ben's differs, and flags alternate. The writer does not check consistency.
    GameState game =
        NewGame(2,
                "42 Anna 10/5D; Ben AttacksLeft 0 DebtTurns 7 EconomyLevel 2 Factories 6 Money -45 "
                "NuclearLevel 3 HasNuke 1 Oil 32767 Tanks -32768 Troops 77 WarfareLevel 1 IsDead 1");
    game.Players[1].Name = "a,b";
    const std::string bytes = WriteGame(game);
    const std::string ben =
        " 0 \r\nTrue\r\n 7 \r\n 2 \r\n 6 \r\nFalse\r\n-45 \r\n 2 \r\n\"a,b\"\r\n 3 \r\n"
        "True\r\n 32767 \r\n-32768 \r\n 77 \r\n 1 \r\nFalse\r\n";
    EXPECT_NE(bytes.find(ben), std::string::npos);
    EXPECT_TRUE(bytes.ends_with("\r\nTrue\r\nFalse\r\nTrue\r\n 0 \r\n 5 \r\n 10 \r\n 0 \r\n 1 \r\n"));
}

TEST(Windows1252, MapsEveryByteToOneCharacterAndBack) {
    std::string bytes(256, '\0');
    std::iota(bytes.begin(), bytes.end(), '\0');
    EXPECT_EQ(ToWindows1252(FromWindows1252(bytes)), bytes);
    EXPECT_EQ(FromWindows1252(bytes.substr(0x80, 0x21)),
              "€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ\u00A0");
}

TEST(ReadGame, AcceptsSeveralFormsAndRefusesABadFileWithItsLine) {
    // A line, its values, each ended by a bar, and their common result.
    const std::vector<std::tuple<int, std::string, std::string>> rows{
        {1, " 1 | 6 |" + std::string(MaxSavedGameBytes, ' ') + "2 |",
         "1: NumPlayers of the game must be a whole number from 2 to 5."},
        {2, " 3 |", "2: AttacksLeft of Player 1 must be a whole number from 0 to 2."},
        {3, "false| FALSE | 0.0 |", ""},
        {3, "Yes|", "3: IsDead of Player 1 must be True or False."},
        {3, "True|2|-1 |", "3: Player 1 owns territories and must be alive."},
        {4, "-1 |", "4: DebtTurns of Player 1 must be a whole number from 0 to 32767."},
        {8, "  -045  |", ""},
        {8, "+12|", "Anna Money 12"},
        {8, "| 32768 |99999999999|2.5|+-5|\t5|5\xD0|",
         "8: Money of Player 1 must be a whole number from -32768 to 32767."},
        {9, "-1 |", "9: MovesLeft of Player 1 must be a whole number from 0 to 2."},
        {10, " Anna|Anna,Bob| \"Anna\" x|", ""},
        {10, "abcdefghijklm|a\x7F| , 3|",
         "10: Name of Player 1 must be 1 to 12 characters that can be shown."},
        {10, "\"Anna|", "10: Name of Player 1 must be closed by a double quote, as it starts with one."},
        {18, "False|", "18: Player 1's Owns and the Owner of Alaskan Territory do not agree."},
        {120, "False|", "120: Alaskan Territory must be Occupied when it has an Owner, and only then."},
        {121, " 2 |", "121: Owner of Alaskan Territory must be a player of this game, or 9 for nobody."},
        {130, "True|", "130: Montreal Territory belongs to nobody, so nothing can stand in it."},
        {131, "True|", "131: Montreal Territory belongs to nobody, so nothing can stand in it."},
        {135, " 1 |", "135: Montreal Territory belongs to nobody, so nothing can stand in it."},
        {370, " 1 |", "370: CurrentPlayer of the game must be a living human player."},
        {371, " 1 |", "371: DeadPlayers of the game must be 0."},
    };
    for (const auto& [line, values, outcome] : rows) {
        std::istringstream all(values);
        for (std::string value; std::getline(all, value, '|');) {
            EXPECT_EQ(Read(WithLine(line, value)), outcome) << value;
        }
    }
    std::string bare = WriteGame(NewGame(2, Sample));
    EXPECT_EQ(Read(bare + std::string(1 << 20, '\n')), "");
    std::erase(bare, '\r');
    bare.pop_back();
    EXPECT_EQ(Read(bare), "");
    EXPECT_EQ(Read(WriteGame(NewGame(2, "1 Anna 1/0"))), "61: Player 2 owns no territory and must be dead.");
    EXPECT_EQ(Read(WriteGame(NewGame(2, "8 Ben 1/0; Anna IsDead 1"))),
              "370: CurrentPlayer of the game must be a living human player.");
    EXPECT_EQ(Read(bare.substr(0, bare.size() - 3)), "371: The file ends before DeadPlayers of the game.");
}

TEST(ReadGame, KeepsTheInvariantsForAnyFile) {
    for (int line = 1; line <= 371; ++line) {
        for (const char* const value : {"", " 1 ", "-1", "True", "2", "4"}) {
            EXPECT_EQ(WrongWithGame(WithLine(line, value)), "") << line << ": " << value;
        }
    }
    // The inputs that the fuzzers have found
    for (const auto& entry : fs::recursive_directory_iterator(VORLUND_SOURCE_DIR "/tests/fuzz/corpus")) {
        if (entry.is_regular_file()) {
            const auto wrong = entry.path().extension() == ".vrs" ? WrongWithGame : WrongWithNumber;
            EXPECT_EQ(wrong(Content(entry)), "") << entry.path();
        }
    }
}

TEST(GameName, GivesAFileNameOrIsRefused) {
    EXPECT_EQ(WhyNoGameName("100%&'~.."), std::nullopt);
    EXPECT_EQ(FileNameOf("  MY 100%&'~.. "), "my 100%&'~...vrs");
    EXPECT_EQ(FileNameOf("   "), ".vrs");
    // The ends of each run of capitals, and characters between the runs
    EXPECT_EQ(FileNameOf(
                  "@AZ[\u00C0\u00D6\u00D7\u00D8\u00DE\u00DF\u0100\u0101\u012E\u0130\u0131\u0132\u0136\u0138"),
              "@az[\u00E0\u00F6\u00D7\u00F8\u00FE\u00DF\u0101\u0101\u012F\u0130\u0131\u0133\u0137\u0138.vrs");
    EXPECT_EQ(FileNameOf("\u0139\u0147\u0149\u014A\u0176\u0178\u0179\u017D\u017F\U0001F600A"),
              "\u013A\u0148\u0149\u014B\u0177\u00FF\u017A\u017E\u017F\U0001F600a.vrs");
    EXPECT_EQ(
        FileNameOf("\u0388\u038A\u038B\u0391\u03A1\u03A2\u03A3\u03AB\u03AC\u0400\u040F\u0410\u042F\u0430"),
        "\u03AD\u03AF\u038B\u03B1\u03C1\u03A2\u03C3\u03CB\u03AC\u0450\u045F\u0430\u044F\u0430.vrs");
    EXPECT_EQ(WhyNoGameName(""), "Enter an identifiable game name to open at a later time.");
    for (const char* const name :
         {"\\", "a/b", ":", "a*", "?", "\"a", "<a", "a>", "|", "\n", "a\x7F", "\u0085"}) {
        EXPECT_EQ(WhyNoGameName(name),
                  "A game name cannot hold a control character or any of these:\r\\ / : * ? \" < > |");
    }
    for (const char* const device :
         {"con", " CON ", "Nul.old", "aux .x", "prn", "COM1", "lpt9.", "com\u00B9"}) {
        EXPECT_EQ(WhyNoGameName(device),
                  "On Windows that is the name of a device: the game could not be loaded there.\r"
                  "Choose a different name and try again.");
    }
    for (const char* const name : {"con1", "com", "com0", "com10", "lp", "my con", ".con"}) {
        EXPECT_EQ(WhyNoGameName(name), std::nullopt) << name;
    }
    for (const char* const malformed : {"\xC3(", "\xC3", "\xC1\x81", "\xED\xA0\x80", "\xED\xBF\xBF",
                                        "\xF4\x90\x80\x80", "\x80", "\xE2\x82"}) {
        EXPECT_EQ(WhyNoGameName(malformed),
                  "A character of the game name was cut in half.\rEnter the name again.");
    }
}

}  // namespace
}  // namespace vorlund
