#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "tests/engine/hands.h"

namespace {

constexpr int StepsPerGame = 1500;
constexpr int StepsAfterTheEnd = 3;
constexpr std::ptrdiff_t StepsTold = 12;

unsigned long FromEnvironment(const char* name, unsigned long otherwise) {
    const char* const text = std::getenv(name);
    return text != nullptr ? std::strtoul(text, nullptr, 10) : otherwise;
}

/// Plays one game to its end, for a while at least; false when something broke, which has been printed.
bool PlayGame(unsigned long seed, unsigned long number, unsigned long& ended) {
    vorlund::Hands hands(static_cast<std::uint32_t>(seed * 1000003UL + number));
    int stepsAfterTheEnd = 0;
    for (int step = 0; step < StepsPerGame && stepsAfterTheEnd < StepsAfterTheEnd; ++step) {
        if (const auto complaint = hands.Step()) {
            std::printf("BROKEN: %s\nseed %lu, game %lu; the last steps:\n", complaint->c_str(), seed,
                        number);
            const auto& steps = hands.Steps();
            for (auto last = std::max(steps.begin(), steps.end() - StepsTold); last != steps.end(); ++last) {
                std::string line = *last;
                std::replace(line.begin(), line.end(), '\r', '|');
                std::printf("  %s\n", line.c_str());
            }
            return false;
        }
        stepsAfterTheEnd += hands.Game().GameOver ? 1 : 0;
    }
    ended += stepsAfterTheEnd > 0 ? 1 : 0;
    return true;
}

}  // namespace

/// Plays VORLUND_GAMES random games (2,000 if unset) from VORLUND_SEED (1), up to the first that breaks.
int main() {
    const unsigned long games = FromEnvironment("VORLUND_GAMES", 2000);
    const unsigned long seed = FromEnvironment("VORLUND_SEED", 1);
    unsigned long ended = 0;
    for (unsigned long game = 0; game < games; ++game) {
        if (!PlayGame(seed, game, ended)) {
            return 1;
        }
    }
    std::printf("%lu games from seed %lu, %lu of them to the end\n", games, seed, ended);
    return 0;
}
