#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "actions/outcome.h"
#include "state/game_state.h"

namespace vorlund {

/// The entries of the buy and the sell dialog, as typed. An empty one counts as 0.
struct TradeEntries {
    std::string Territory;  ///< number 1 to 42; looked at only when units are traded
    std::string Troops;
    std::string Tanks;
    std::string Oil;  ///< barrels
};

/// What both trades say of entries that mean nothing, are no numbers, or lead out of the 16-bit range.
inline constexpr const char* NoTransactionText = "The data you entered will not make a transaction.";

/// The headline of both trades' reports.
inline constexpr const char* TransactionHeadline = "Details on current transaction:";

// What buying and selling share. They read, check and correct their entries in orders of their own.

/// What tells the two trades apart, prices in dollars.
struct TradeTerms {
    const char* Verb;      ///< "buy"
    const char* PastVerb;  ///< "bought"
    int Direction;         ///< 1 when goods come to the player, -1 when they go
    int TroopPrice;
    int TankPrice;
};

/// Quantities read from entries, fractions and signs included.
struct TradeQuantities {
    double Troops = 0;
    double Tanks = 0;
    double Oil = 0;
};

/// Quantities to be traded, none of them negative.
struct TradeOrder {
    std::int16_t Troops = 0;
    std::int16_t Tanks = 0;
    std::int16_t Oil = 0;

    bool IsEmpty() const { return Troops == 0 && Tanks == 0 && Oil == 0; }
};

/// One of the two kinds of units: its name in texts, and its place in each record.
struct UnitKind {
    const char* Name;
    double TradeQuantities::*Entered;
    std::int16_t TradeOrder::*Ordered;
    std::int16_t Territory::*Stationed;
    std::int16_t Player::*Total;
    int TradeTerms::*Price;
};

inline constexpr std::array<UnitKind, 2> UnitKinds{{
    {"Troops", &TradeQuantities::Troops, &TradeOrder::Troops, &Territory::Troops, &Player::Troops,
     &TradeTerms::TroopPrice},
    {"Tanks", &TradeQuantities::Tanks, &TradeOrder::Tanks, &Territory::Tanks, &Player::Tanks,
     &TradeTerms::TankPrice},
}};

/// A trade that has been carried out: its lines in the report, and the dollars that changed hands.
struct TradeBooking {
    std::string Lines;
    int Total = 0;
};

/// Reads the three quantities; nothing when one of them is no number.
std::optional<TradeQuantities> ReadQuantities(const TradeEntries& entries);

/// Cuts the quantities down to whole numbers, then makes negative ones and oil below a lot of 3 barrels 0;
/// nothing when one does not fit 16 bits.
std::optional<TradeOrder> CutAndCorrect(const TradeQuantities& quantities);

/// The index of the territory in which units are traded, or why there is none.
std::variant<Refusal, int> UnitTerritory(const TradeTerms& terms, const UnitKind& kind,
                                         const TradeEntries& entries);

/// Carries out the whole order for the current player, with the units in territory index `territory` (any one
/// when there are none) and oil at a dollar for 3 barrels, in whole lots. Nothing, and no change,
/// when a field would leave the 16-bit range.
std::optional<TradeBooking> Book(GameState& game, const TradeTerms& terms, const TradeOrder& order,
                                 int territory);

}  // namespace vorlund
