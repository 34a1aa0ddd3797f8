#include "tests/engine/deeds.h"

#include <variant>

#include "actions/battle.h"
#include "actions/buy.h"
#include "actions/sell.h"
#include "actions/status.h"
#include "actions/strike.h"
#include "actions/transport.h"
#include "actions/upgrade.h"
#include "tests/engine/checks.h"
#include "tests/engine/entries.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

/// Turns an outcome into a deed and shows it.
struct Show {
    Table& On;
    Deed& Into;

    void operator()(const Refusal& refusal) const { Into.Said = refusal.Message; }
    void operator()(const Beep&) const { Into.Said = "(beep)"; }
    void operator()(const Nothing&) const { Into.Said = "(nothing)"; }
    void operator()(const Report& report) const {
        Into.Said = report.Headline;
        Into.Done = Into.Closes = true;
        On.Seen.RefreshMap();
        On.Seen.ShowReport(report, std::nullopt);
    }
    void operator()(const NoSurvivor&) const {
        Into.Said = "(nobody is left)";
        Into.Done = Into.Closes = true;
        NobodyWins(On.Game, On.Seen);
    }
    void operator()(const Moved& moved) const { Stay(moved.StatusLine); }
    void operator()(const Purchase& purchase) const { Stay(purchase.Message); }

    void Stay(const std::string& said) const {
        Into.Said = said;
        Into.Done = true;
        On.Seen.RefreshMap();
    }
};

std::string Joined(const char* action, std::initializer_list<std::string> entries) {
    std::string text = action;
    for (const std::string& entry : entries) {
        text += " '" + entry + "'";
    }
    return text;
}

Deed Trade(bool buys, Table& table, Random& hands) {
    const Player& player = table.Game.Current();
    TradeEntries entries;
    entries.Territory = TerritoryEntry(table.Game, hands);
    const double typed = std::atof(entries.Territory.c_str());
    const int t = typed >= 1 && typed <= NumTerritories ? static_cast<int>(typed) - 1 : 0;
    const bool tradesUnits = hands.Draw(4) != 0;
    const int budget = player.Money > 0 ? player.Money : 0;
    if (tradesUnits) {
        entries.Troops = QuantityEntry(buys ? budget / 20 : table.Game.TerritoryAt(t).Troops, hands);
        entries.Tanks = QuantityEntry(buys ? budget / 80 : table.Game.TerritoryAt(t).Tanks, hands);
    }
    entries.Oil = hands.Draw(2) == 0 ? QuantityEntry(buys ? budget : player.Oil, hands) : "";
    Deed deed;
    deed.What =
        Joined(buys ? "buy" : "sell", {entries.Territory, entries.Troops, entries.Tanks, entries.Oil});
    if (buys) {
        std::visit(Show{table, deed}, Buy(table.Game, entries));
    } else {
        std::visit(Show{table, deed}, Sell(table.Game, entries));
    }
    return deed;
}

Deed Transport(Table& table, Random& hands) {
    const RouteEntries route = RandomRoute(table.Game, hands);
    const TransportEntries entries{route.From, route.To, QuantityEntry(route.Troops, hands),
                                   QuantityEntry(route.Tanks, hands)};
    Deed deed;
    deed.What = Joined("transport", {entries.Source, entries.Destination, entries.Troops, entries.Tanks});
    std::visit(Show{table, deed}, Tran(table.Game, CanMove(table.Game), entries));
    return deed;
}

Deed AttackOrStrike(Table& table, Random& hands) {
    Deed deed;
    if (hands.Draw(4) == 0) {
        const std::string target =
            hands.Draw(2) == 0 ? NastyEntry(hands) : std::to_string(1 + hands.Draw(NumTerritories));
        deed.What = Joined("strike", {target});
        std::visit(Show{table, deed}, Strike(table.Game, table.Game.Current().HasNuke, target));
        return deed;
    }
    const RouteEntries route = RandomRoute(table.Game, hands);
    const AttackEntries entries{route.From, route.To, QuantityEntry(route.Troops, hands),
                                QuantityEntry(route.Tanks, hands)};
    deed.What = Joined("attack", {entries.Attacker, entries.Defender, entries.Troops, entries.Tanks});
    deed.IsBattle = true;
    std::visit(Show{table, deed}, Attck(table.Game, table.Chance, CanAttack(table.Game), entries));
    return deed;
}

Deed Upgrade(Table& table, Random& hands) {
    Deed deed;
    const int choice = hands.Draw(5);
    if (choice < 3) {
        deed.What = "upgrade track " + std::to_string(choice + 1);
        std::visit(Show{table, deed}, RaiseLevel(table.Game, static_cast<Track>(choice)));
        return deed;
    }
    const std::string territory = TerritoryEntry(table.Game, hands);
    deed.What = Joined(choice == 3 ? "factory" : "defense", {territory});
    std::visit(Show{table, deed}, choice == 3 ? Fact(table.Game, territory) : Def(table.Game, territory));
    return deed;
}

Deed Save(const Table& table) {
    Deed deed;
    deed.What = "save";
    deed.Closes = true;
    deed.Said = BrokenSaving(table.Game).value_or("saved");
    return deed;
}

}  // namespace

Deed ActInDialog(Command dialog, Table& table, Random& hands) {
    switch (dialog) {
        case Command::Buy:
        case Command::Sell:
            return Trade(dialog == Command::Buy, table, hands);
        case Command::Transport:
            return Transport(table, hands);
        case Command::Attack:
            return AttackOrStrike(table, hands);
        case Command::Upgrade:
            return Upgrade(table, hands);
        case Command::Status:
            return {"status", DescribeStatus(table.Game).Upkeep, false, true, false};
        case Command::Save:
            return Save(table);
        case Command::EndTurn:
            break;
    }
    return {};
}

}  // namespace vorlund
