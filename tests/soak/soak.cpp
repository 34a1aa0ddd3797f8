#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "tests/engine/hands.h"

namespace vorlund {
namespace {

constexpr unsigned long DefaultGames = 2000;
constexpr unsigned long DefaultSeed = 1;
constexpr int StepsPerGame = 1500;
constexpr int StepsAfterTheEnd = 3;

unsigned long FromEnvironment(const char* name, unsigned long otherwise) {
    const char* const text = std::getenv(name);
    return text != nullptr ? std::strtoul(text, nullptr, 10) : otherwise;
}

struct Tally {
    unsigned long Steps = 0;
    unsigned long Won = 0;
    unsigned long WonByNobody = 0;
    unsigned long CutShort = 0;
};

/// Plays one game; false when something broke, which has been printed.
bool PlayGame(unsigned long seed, unsigned long number, Tally& tally) {
    Hands hands(static_cast<std::uint32_t>(seed * 1000003UL + number));
    int stepsAfterTheEnd = 0;
    for (int step = 0; step < StepsPerGame && stepsAfterTheEnd < StepsAfterTheEnd; ++step) {
        ++tally.Steps;
        if (const auto complaint = hands.Step()) {
            std::printf("BROKEN: %s\nseed %lu, game %lu, step %d; the last steps:\n", complaint->c_str(),
                        seed, number, step);
            for (std::string last : hands.LastSteps()) {
                std::replace(last.begin(), last.end(), '\r', '|');
                std::printf("  %s\n", last.c_str());
            }
            return false;
        }
        stepsAfterTheEnd += hands.Game().GameOver ? 1 : 0;
    }
    ++(stepsAfterTheEnd == 0 ? tally.CutShort : hands.SomebodyWon() ? tally.Won : tally.WonByNobody);
    return true;
}

}  // namespace
}  // namespace vorlund

/// Plays VORLUND_GAMES random games (2,000 if unset) from VORLUND_SEED (1), up to the first that breaks.
int main() {
    const unsigned long games = vorlund::FromEnvironment("VORLUND_GAMES", vorlund::DefaultGames);
    const unsigned long seed = vorlund::FromEnvironment("VORLUND_SEED", vorlund::DefaultSeed);
    vorlund::Tally tally;
    for (unsigned long game = 0; game < games; ++game) {
        if (!vorlund::PlayGame(seed, game, tally)) {
            return 1;
        }
    }
    std::printf("%lu games from seed %lu, %lu steps: %lu won, %lu ended with nobody, %lu cut short\n", games,
                seed, tally.Steps, tally.Won, tally.WonByNobody, tally.CutShort);
    return 0;
}
