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

/// The selection of territories in a new game: a human drawn at random claims a territory first, then the
/// other humans in the order of play, and last the computer players, in random territories without occupied
/// neighbours. The game and the generator must outlive it.
class Selection {
public:
    /// The result of an entry. `Message` replaces the text of the message area. The screen empties the entry
    /// field in any case and beeps on a rejection.
    struct Step {
        enum class Kind {
            Rejected,   ///< nothing has changed, the same player selects again
            NextHuman,  ///< the territory is claimed, CurrentPlayer selects next
            Ended  ///< every player has a territory; CurrentPlayer, who selected first, has the first turn
        };
        Kind What = Kind::Rejected;
        std::string Message;

        bool operator==(const Step&) const = default;
    };

    Selection(GameState& game, Random& random) : game_(game), random_(random) {}

    /// Draws who selects first, reseeding before each draw, until it is a human (there must be one), and
    /// returns the first message.
    std::string Open();

    /// The territories that CurrentPlayer can select: the unoccupied ones.
    TerritorySet Free() const;

    /// CurrentPlayer selects the territory whose number, 1 to 42, has been typed.
    /// Claims for CurrentPlayer the territory whose number, 1 to 42, has been typed.
    Step Entr(std::string_view typed);

private:
    Step Reject(const std::string& reason) const;
    void ClaimForComputers();

    GameState& game_;
    Random& random_;
    int picks_ = 0;  ///< players who have selected; computer players count from the start
};

}  // namespace vorlund
