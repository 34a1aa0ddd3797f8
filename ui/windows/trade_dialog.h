// SPDX-License-Identifier: MIT
#pragma once

#include "actions/trade.h"
#include "ui/windows/command_dialog.h"

namespace vorlund {

/// Base class of the buy and sell dialogs: a status line, a territory field on the left, and a column of
/// fields for troops, tanks and oil with the command beside it.
class TradeDialog : public CommandDialog {
    Q_OBJECT

protected:
    struct Layout {
        QString Name;
        QString Title;
        QSize Size;
        int TerritoryFieldX;
        int QuantityCaptionX;
        int QuantityFieldX;
        const char* TerritoryCaption;
        UnitPrices Prices;  ///< shown in the captions
        QString Command;
        TerritorySet (*Territories)(const GameState&);  ///< in which units could be traded
        Most (*MostOf)(const GameState&, const TradeEntries&, Goods);
    };

    TradeDialog(DialogHost& host, const GameState& game, const Layout& layout, std::string_view topLine);

    TradeEntries Entries() const;

    /// Runs the order and shows its outcome.
    virtual void Trade() = 0;

private:
    Field* txtC1_;
    Field* txtTroops_;
    Field* txtTanks_;
    Field* txtOil_;
};

}  // namespace vorlund
