#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>

#include "tests/engine/deeds.h"
#include "tests/engine/seeded_random.h"
#include "tests/engine/table.h"
#include "turn/commands.h"

namespace vorlund {

/// Random hands at the board of one game: they open dialogs, type into them, close them, close reports and
/// end turns, in any order that the screens allow, and check after every step that nothing is broken. The
/// same seed plays the same game.
class Hands {
public:
    explicit Hands(std::uint32_t seed);

    /// Does one thing. A complaint when something is broken, otherwise nothing. Once the game has ended the
    /// step only sees to it that nothing comes back to life.
    std::optional<std::string> Step();

    const GameState& Game() const { return table_.Game; }
    bool SomebodyWon() const { return table_.Seen.GameOverShown; }

    /// The last few steps, oldest first.
    const std::deque<std::string>& LastSteps() const { return steps_; }

private:
    void Remember(std::string step);
    void Open(Command command);
    void CloseDialog();
    std::optional<std::string> Act();
    std::optional<std::string> EndTurn();
    std::optional<std::string> CloseReport();
    std::optional<std::string> AfterTheEnd();
    std::optional<std::string> BrokenHandOver(const GameState& before, std::int64_t draws) const;
    std::optional<std::string> BrokenBoard() const;
    CommandSet Available() const { return table_.Seen.Commands.value_or(CommandSet::None()); }

    SeededRandom mind_;
    Table table_;
    int restlessness_;  ///< one in so many thoughts is of ending the turn
    std::optional<Command> dialog_;
    std::deque<std::string> steps_;
};

}  // namespace vorlund
