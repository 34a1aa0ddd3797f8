// SPDX-License-Identifier: MIT
#include "ui/windows/frmTransport.h"

#include "ui/windows/dialog_host.h"

namespace vorlund {

using namespace Qt::StringLiterals;

frmTransport::frmTransport(DialogHost& host, GameState& game)
    : CommandDialog(host, u"frmTransport"_s, u"Vorlund - Transport"_s, QSize(391, 110)), game_(game) {
    AddText(u"lbl1"_s, Face::Heading, QRect(8, 5, 124, 19), "Move Tanks/Troops:");
    lblA_ = AddText(u"lblA"_s, Face::Status, QRect(134, 5, 251, 19), MovesLeftText(game));
    lblA_->SetLive();
    TextLabel* lbl3 = AddText(u"lbl3"_s, Face::Caption, QRect(10, 40, 112, 19), "Original territory #:");
    txtC1_ = AddField(lbl3, u"txtC1"_s, QPoint(124, 40), 2);
    TextLabel* label1 = AddText(u"Label1"_s, Face::Caption, QRect(10, 72, 112, 19), "Resulting territory #:");
    txtC2_ = AddField(label1, u"txtC2"_s, QPoint(124, 72), 2);
    TextLabel* lbl4 = AddText(u"lbl4"_s, Face::Caption, QRect(178, 40, 100, 19), "Number of Troops:");
    txtTroops_ = AddField(lbl4, u"txtTroops"_s, QPoint(280, 40), 3);
    TextLabel* lbl5 = AddText(u"lbl5"_s, Face::Caption, QRect(178, 72, 100, 19), "Number of Tanks:");
    txtTanks_ = AddField(lbl5, u"txtTanks"_s, QPoint(280, 72), 3);
    lblGo_ = AddCommand(u"lblGo"_s, u"Move"_s, QRect(328, 56, 48, 19));
    lblGo_->SetKey(u"Enter"_s);
    EnableUnless(*lblGo_, WhyNoMove(game_));
    connect(lblGo_, &CommandLabel::clicked, this, &frmTransport::Move);
    for (Field* field : {txtC1_, txtC2_, txtTroops_, txtTanks_}) {
        connect(field, &Field::Entered, this, &frmTransport::Move);
    }
    AcceptTerritoryClicks({{txtC1_, [this] { return MoveSources(game_); }},
                           {txtC2_, [this] { return MoveDestinations(game_, txtC1_->Typed()); }}},
                          txtTroops_);
    AcceptSteps({{txtTroops_, [this] { return MostToMove(game_, Entries(), Goods::Troops); }},
                 {txtTanks_, [this] { return MostToMove(game_, Entries(), Goods::Tanks); }}});
    txtC1_->setFocus();
}

OrderEntries frmTransport::Entries() const {
    return {txtC1_->Typed(), txtC2_->Typed(), txtTroops_->Typed(), txtTanks_->Typed()};
}

void frmTransport::Move() {
    lblGo_->TellWhyNot();
    std::visit([this](const auto& outcome) { ShowOutcome(outcome); }, Tran(game_, Entries()));
}

void frmTransport::ShowOutcome(const Moved& moved) {
    Host().Board().RefreshMap();
    lblA_->Show(moved.StatusLine);
    txtTroops_->clear();
    txtTanks_->clear();
    EnableUnless(*lblGo_, WhyNoMove(game_));
}

}  // namespace vorlund
