// SPDX-License-Identifier: MIT
#include "ui/windows/trade_dialog.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

constexpr int TroopsY = 38;
constexpr int RowHeight = 30;
constexpr int FieldHeight = 19;
constexpr int TerritoryY = TroopsY + RowHeight / 2;

}  // namespace

TradeDialog::TradeDialog(DialogHost& host, const GameState& game, const Layout& layout,
                         std::string_view topLine)
    : CommandDialog(host, layout.Name, layout.Title, layout.Size) {
    AddText(u"lblA"_s, Face::Status, QRect(8, 5, layout.Size.width() - 16, 19), topLine)
        ->setAlignment(Qt::AlignCenter);
    const auto row = [&](const QString& name, const QString& field, const std::string& caption, int line) {
        const int y = TroopsY + line * RowHeight;
        const int x = layout.QuantityCaptionX;
        TextLabel* label =
            AddText(name, Face::Caption, QRect(x, y, layout.QuantityFieldX - x - 4, FieldHeight), caption);
        return AddField(label, field, QPoint(layout.QuantityFieldX, y), 3);
    };
    TextLabel* lbl3 =
        AddText(u"lbl3"_s, Face::Caption, QRect(8, TerritoryY, layout.TerritoryFieldX - 12, FieldHeight),
                layout.TerritoryCaption);
    txtC1_ = AddField(lbl3, u"txtC1"_s, QPoint(layout.TerritoryFieldX, TerritoryY), 2);
    txtTroops_ =
        row(u"lbl4"_s, u"txtTroops"_s, "Number of Troops($" + std::to_string(layout.Prices.Troop) + "):", 0);
    txtTanks_ =
        row(u"lbl5"_s, u"txtTanks"_s, "Number of Tanks($" + std::to_string(layout.Prices.Tank) + "):", 1);
    txtOil_ = row(u"lbl6"_s, u"txtOil"_s, "Barrels of Oil($1/" + std::to_string(BarrelsPerDollar) + "):", 2);
    CommandLabel* lblGo = AddCommand(u"lblGo"_s, layout.Command,
                                     QRect(layout.QuantityFieldX + 42, TroopsY + RowHeight, 40, FieldHeight));
    lblGo->SetKey(u"Enter"_s);
    connect(lblGo, &CommandLabel::clicked, this, &TradeDialog::Trade);
    for (Field* field : {txtC1_, txtTroops_, txtTanks_, txtOil_}) {
        connect(field, &Field::Entered, this, &TradeDialog::Trade);
    }
    AcceptTerritoryClicks({{txtC1_, [&game, in = layout.Territories] { return in(game); }}}, txtTroops_);
    const auto most = [&](Field* field, Goods goods) {
        return QuantityField{
            field, [this, &game, goods, mostOf = layout.MostOf] { return mostOf(game, Entries(), goods); }};
    };
    AcceptSteps({most(txtTroops_, Goods::Troops), most(txtTanks_, Goods::Tanks), most(txtOil_, Goods::Oil)});
    txtC1_->setFocus();
}

TradeEntries TradeDialog::Entries() const {
    return {txtC1_->Typed(), txtTroops_->Typed(), txtTanks_->Typed(), txtOil_->Typed()};
}

}  // namespace vorlund
