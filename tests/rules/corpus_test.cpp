#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/fuzz/inputs.h"

namespace vorlund {
namespace {

// What the fuzzers have found worth keeping stays found.

void Replay(const std::string& folder, std::string (*wrongWith)(std::string_view)) {
    int files = 0;
    const std::filesystem::path corpus(VORLUND_SOURCE_DIR "/tests/fuzz/corpus/" + folder);
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
}

TEST(Corpus, TypedNumbersAreReadAsTheirGrammarSays) {
    Replay("read_number", WrongWithNumber);
}

}  // namespace
}  // namespace vorlund
