#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

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

    /// What was done so far, oldest first.
    const std::vector<std::string>& Steps() const { return steps_; }

private:
    using Complaint = std::optional<std::string>;

    Complaint Act();
    void CloseDialog();
    Complaint EndTurn();
    Complaint CloseReport();
    Complaint AfterTheEnd();
    Complaint BrokenHandOver(const GameState& before, std::int64_t draws) const;
    Complaint BrokenBoard() const;
    CommandSet Available() const { return table_.Seen.Commands.value_or(CommandSet::None()); }

    SeededRandom mind_;
    Table table_;
    int restlessness_;  ///< one in so many thoughts is of ending the turn
    std::optional<Command> dialog_;
    std::vector<std::string> steps_;
};

}  // namespace vorlund
