#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "savegame/format.h"
#include "tests/fuzz/read_game.h"
#include "tests/fuzz/read_number.h"
#include "tests/rules/savegame_samples.h"

namespace vorlund {
namespace {

// What the fuzzers have found worth keeping stays found.

void Replay(const std::string& folder, std::string (*wrongWith)(std::string_view)) {
    int files = 0;
    const std::filesystem::path corpus =
        std::filesystem::path(VORLUND_SOURCE_DIR) / "tests/fuzz/corpus" / folder;
    for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        EXPECT_EQ(wrongWith(bytes), "") << entry.path();
        ++files;
    }
    EXPECT_GT(files, 0);
}

TEST(Corpus, SavedGamesAreRefusedOrPlayOn) {
    Replay("read_game", WrongWithGame);
    for (int players = 2; players <= MaxPlayers; ++players) {
        EXPECT_EQ(WrongWithGame(WriteGame(SampleGame(players))), "") << players;
    }
}

TEST(Corpus, TypedNumbersAreReadAsTheirGrammarSays) {
    Replay("read_number", WrongWithNumber);
}

}  // namespace
}  // namespace vorlund
