// SPDX-License-Identifier: MIT
#pragma once

#include "actions/trade.h"
#include "ui/windows/command_dialog.h"

namespace vorlund {

/// What the buy and the sell dialog share: a line across the top, a territory on the left, and troops, tanks
/// and oil in a column on the right with the command beside them.
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
        UnitPrices Prices;  ///< in the captions of the fields
        QString Command;
    };

    TradeDialog(DialogHost& host, const Layout& layout, std::string_view topLine);

    TradeEntries Entries() const;

    /// Carries the order out, or shows why not.
    virtual void Trade() = 0;

private:
    Field* txtC1_;
    Field* txtTroops_;
    Field* txtTanks_;
    Field* txtOil_;
};

}  // namespace vorlund
