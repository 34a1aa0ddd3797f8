// SPDX-License-Identifier: MIT
#include "actions/transport.h"

#include "state/ownership.h"

namespace vorlund {
namespace {

constexpr OrderTerms Moving{
    false,
    true,
    "Enter a number 1-42 for the territory with the starting units.",
    "Enter a number 1-42 for the destination territory.",
    "You entered invalid transport data...\rCheck the validity of your move and try again.",
    "You cannot move more ",
    "You cannot move negative "};

}  // namespace

WhyNot WhyNoMove(const GameState& game) {
    const std::int16_t left = game.Current().MovesLeft;
    return left == 1 || left == 2 ? std::nullopt : WhyNot("You have no move left this turn.");
}

int MovesToMake(const GameState& game) {
    return WhyNoMove(game) ? 0 : game.Current().MovesLeft;
}

std::string MovesLeftText(const GameState& game) {
    const int left = MovesToMake(game);
    return "You have " + std::to_string(left) + (left == 1 ? " move" : " moves") + " left this turn.";
}

TerritorySet MoveSources(const GameState& game) {
    return WhyNoMove(game) ? TerritorySet() : Sources(game, Moving);
}

TerritorySet MoveDestinations(const GameState& game, std::string_view from) {
    return WhyNoMove(game) ? TerritorySet() : Destinations(game, Moving, from);
}

Most MostToMove(const GameState& game, const OrderEntries& entries, Goods goods) {
    const WhyNot whyNot = WhyNoMove(game);
    return whyNot ? Most{0, *whyNot} : MostToSend(game, Moving, entries, goods);
}

std::variant<Beep, Refusal, Moved> Tran(GameState& game, const OrderEntries& entries) {
    if (WhyNoMove(game)) {
        return Beep{};
    }
    const auto read = ReadOrder(game, Moving, entries);
    if (const auto* refusal = std::get_if<Refusal>(&read)) {
        return *refusal;
    }
    const auto& [from, to, force] = std::get<Order>(read);
    Territory& source = game.TerritoryAt(from);
    Territory& destination = game.TerritoryAt(to);
    Add(source.Stationed, -force);
    Add(destination.Stationed, force);
    Claim(game, to, game.CurrentPlayer);
    Add(game.Current().MovesLeft, -1);
    if (source.Stationed.IsEmpty()) {
        Abandon(game, from);
    }
    return Moved{"Move to " + std::string(destination.Name) + " was successful."};
}

}  // namespace vorlund
