// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "state/game_state.h"
#include "state/random.h"
#include "state/territory_set.h"

namespace vorlund {

inline constexpr std::int16_t StartingTroops = 10;
inline constexpr std::int16_t HumanStartingMoney = 100;

/// The opening round of a new game: a human drawn by chance claims a territory first, then the other humans
/// in the order of play, and at last the computer players, who keep away from every territory already taken.
/// The game and the generator must outlive it.
class Selection {
public:
    /// What an entry led to. `Message` replaces the text of the message area. The entry field is emptied in
    /// any case; a rejection beeps, anything else has claimed land.
    struct Step {
        enum class Kind {
            Rejected,   ///< nothing has changed, the same player selects again
            NextHuman,  ///< CurrentPlayer selects now
            Ended       ///< everybody has land, and CurrentPlayer, who selected first, takes the first turn
        };
        Kind What = Kind::Rejected;
        std::string Message;

        bool operator==(const Step&) const = default;
    };

    Selection(GameState& game, Random& random) : game_(game), random_(random) {}

    /// Draws the first selector, reseeding before each draw until it falls on a human (there must be one),
    /// and returns the first message.
    std::string Open();

    /// What CurrentPlayer can select: whatever nobody holds.
    TerritorySet Free() const;

    /// CurrentPlayer selects the territory whose number, 1 to 42, has been typed.
    Step Entr(std::string_view typed);

private:
    Step Reject(const std::string& reason) const;
    void ClaimForComputers();

    GameState& game_;
    Random& random_;
    int picks_ = 0;  // computer players count as having picked
};

}  // namespace vorlund
