// SPDX-License-Identifier: MIT
#include "ui/windows/frmTransport.h"

#include "ui/windows/dialog_host.h"

namespace vorlund {

frmTransport::frmTransport(DialogHost& host, GameState& game)
    : CommandDialog(host, QStringLiteral("frmTransport"), QStringLiteral("Vorlund - Transport"),
                    QSize(391, 110)),
      game_(game) {
    AddText(QStringLiteral("lbl1"), Face::Heading, QRect(8, 5, 124, 19), "Move Tanks/Troops:");
    lblA_ = AddText(QStringLiteral("lblA"), Face::Status, QRect(134, 5, 251, 19), MovesLeftText(game));
    TextLabel* lbl3 =
        AddText(QStringLiteral("lbl3"), Face::Caption, QRect(10, 40, 112, 19), "Original territory #:");
    txtC1_ = AddField(lbl3, QStringLiteral("txtC1"), QPoint(124, 40), 2);
    TextLabel* label1 =
        AddText(QStringLiteral("Label1"), Face::Caption, QRect(10, 72, 112, 19), "Resulting territory #:");
    txtC2_ = AddField(label1, QStringLiteral("txtC2"), QPoint(124, 72), 2);
    TextLabel* lbl4 =
        AddText(QStringLiteral("lbl4"), Face::Caption, QRect(178, 40, 100, 19), "Number of Troops:");
    txtTroops_ = AddField(lbl4, QStringLiteral("txtTroops"), QPoint(280, 40), 3);
    TextLabel* lbl5 =
        AddText(QStringLiteral("lbl5"), Face::Caption, QRect(178, 72, 100, 19), "Number of Tanks:");
    txtTanks_ = AddField(lbl5, QStringLiteral("txtTanks"), QPoint(280, 72), 3);
    lblGo_ = AddCommand(QStringLiteral("lblGo"), QStringLiteral("Move"), QRect(328, 56, 48, 19));
    lblGo_->SetKey(QStringLiteral("Enter"));
    Offer(*lblGo_, WhyNoMove(game_));
    connect(lblGo_, &CommandLabel::clicked, this, &frmTransport::Move);
    for (Field* field : {txtC1_, txtC2_, txtTroops_, txtTanks_}) {
        connect(field, &Field::Entered, this, &frmTransport::Move);
    }
    TakeTerritories({txtC1_, txtC2_});
    txtC1_->setFocus();
}

void frmTransport::Move() {
    const OrderEntries entries{txtC1_->Typed(), txtC2_->Typed(), txtTroops_->Typed(), txtTanks_->Typed()};
    std::visit([this](const auto& outcome) { Settle(outcome); }, Tran(game_, entries));
}

void frmTransport::Settle(const Moved& moved) {
    host().Board().RefreshMap();
    lblA_->Show(moved.StatusLine);
    txtTroops_->clear();
    txtTanks_->clear();
    Offer(*lblGo_, WhyNoMove(game_));
}

}  // namespace vorlund
