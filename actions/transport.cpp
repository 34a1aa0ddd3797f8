#include "actions/transport.h"

#include <optional>

#include "state/int16.h"
#include "state/ownership.h"
#include "state/typed_number.h"
#include "state/world.h"

namespace vorlund {
namespace {

// The force as it is checked first: tanks are whole by then, troops not yet.
struct Force {
    double Troops = 0;
    std::int16_t Tanks = 0;
};

struct Move {
    int From = 0;
    int To = 0;
    std::int16_t Troops = 0;
    std::int16_t Tanks = 0;
};

Refusal InvalidData() {
    return {"You entered invalid transport data...\rCheck the validity of your move and try again."};
}

std::optional<Force> ReadForce(const TransportEntries& entries) {
    const auto troops = ReadQuantity(entries.Troops);
    const auto tanks = ReadQuantity(entries.Tanks);
    const auto wholeTanks = tanks ? RoundToInt16(*tanks) : std::nullopt;
    if (!troops || !wholeTanks) {
        return std::nullopt;
    }
    return Force{*troops, *wholeTanks};
}

// A move that the map and the 16-bit range allow, whatever stands in its source.
std::optional<Move> ReadMove(const GameState& game, const TransportEntries& entries, const Force& force) {
    const auto from = ReadTerritory(entries.Source, TerritoryRounding::Index);
    const auto to = ReadTerritory(entries.Destination, TerritoryRounding::Index);
    const auto troops = CutToInt16(force.Troops);
    if (!from || !to || !troops || !CanReach(game, false, *from, *to)) {
        return std::nullopt;
    }
    return Move{*from, *to, *troops, force.Tanks};
}

std::optional<Refusal> RefuseForce(const GameState& game, const Move& move) {
    const Territory& source = game.TerritoryAt(move.From);
    const Territory& destination = game.TerritoryAt(move.To);
    if (move.Troops > source.Troops) {
        return Refusal{"You cannot move more troops than you have."};
    }
    if (move.Tanks > source.Tanks) {
        return Refusal{"You cannot move more tanks than you have."};
    }
    if (move.Troops < 0) {
        return Refusal{"You cannot move negative troops."};
    }
    if (move.Tanks < 0) {
        return Refusal{"You cannot move negative tanks."};
    }
    if (!FitsInt16(destination.Troops + move.Troops) || !FitsInt16(destination.Tanks + move.Tanks)) {
        return InvalidData();
    }
    return std::nullopt;
}

void CarryOut(GameState& game, const Move& move) {
    Territory& source = game.TerritoryAt(move.From);
    Territory& destination = game.TerritoryAt(move.To);
    Add(source.Troops, -move.Troops);
    Add(destination.Troops, move.Troops);
    Add(source.Tanks, -move.Tanks);
    Add(destination.Tanks, move.Tanks);
    Claim(game, move.To, game.CurrentPlayer);
    Add(game.Current().MovesLeft, -1);
    if (source.Troops == 0 && source.Tanks == 0) {
        Abandon(game, move.From);
    }
}

}  // namespace

bool CanMove(const GameState& game) {
    return game.Current().MovesLeft == 1 || game.Current().MovesLeft == 2;
}

std::string MovesLeftText(const GameState& game) {
    const int moves = CanMove(game) ? game.Current().MovesLeft : 0;
    return "You have " + std::to_string(moves) + (moves == 1 ? " move" : " moves") + " left this turn.";
}

std::variant<Beep, Refusal, Moved> Tran(GameState& game, bool moveEnabled, const TransportEntries& entries) {
    if (!moveEnabled) {
        return Beep{};
    }
    if (entries.Source.empty()) {
        return Refusal{"Enter a number 1-42 for the territory with the starting units."};
    }
    if (entries.Destination.empty()) {
        return Refusal{"Enter a number 1-42 for the destination territory."};
    }
    const auto force = ReadForce(entries);
    if (!force) {
        return InvalidData();
    }
    if (force->Troops == 0 && force->Tanks == 0) {
        return Refusal{"Enter a number for either troops or tanks."};
    }
    const auto move = ReadMove(game, entries, *force);
    if (!move) {
        return InvalidData();
    }
    if (const auto refusal = RefuseForce(game, *move)) {
        return *refusal;
    }
    CarryOut(game, *move);
    return Moved{"Move to " + std::string(game.TerritoryAt(move->To).Name) + " was successful."};
}

}  // namespace vorlund
