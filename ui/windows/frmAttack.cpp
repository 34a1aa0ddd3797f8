// SPDX-License-Identifier: MIT
#include "ui/windows/frmAttack.h"

#include "actions/battle.h"
#include "actions/strike.h"
#include "ui/machine/sounds.h"

namespace vorlund {

frmAttack::frmAttack(DialogHost& host, GameState& game, Random& random, Sounds& sounds)
    : CommandDialog(host, QStringLiteral("frmAttack"), QStringLiteral("Vorlund - Attack"), QSize(414, 189)),
      game_(game),
      random_(random),
      sounds_(sounds) {
    AddBattleHalf();
    AddLine(QStringLiteral("Line1"), QPoint(22, 108), 370);
    AddStrikeHalf();
    txtC1_->setFocus();
}

void frmAttack::AddBattleHalf() {
    AddText(QStringLiteral("lbl1"), Face::Heading, QRect(0, 8, 120, 19), "Normal Attack:")
        ->setAlignment(Qt::AlignCenter);
    AddText(QStringLiteral("lblA"), Face::Status, QRect(127, 8, 270, 19), AttacksLeftText(game_));
    TextLabel* lbl3 =
        AddText(QStringLiteral("lbl3"), Face::Caption, QRect(16, 40, 110, 19), "Attacking territory #:");
    TextLabel* label1 =
        AddText(QStringLiteral("Label1"), Face::Caption, QRect(16, 72, 110, 19), "Defending territory #:");
    TextLabel* lbl4 =
        AddText(QStringLiteral("lbl4"), Face::Caption, QRect(176, 40, 102, 19), "Number of Troops:");
    TextLabel* lbl5 =
        AddText(QStringLiteral("lbl5"), Face::Caption, QRect(174, 72, 104, 19), "Number of Tanks:");
    txtC1_ = AddField(lbl3, QStringLiteral("txtC1"), QPoint(128, 40), 2);
    txtC2_ = AddField(label1, QStringLiteral("txtC2"), QPoint(128, 72), 2);
    txtTroops_ = AddField(lbl4, QStringLiteral("txtTroops"), QPoint(280, 40), 3);
    txtTanks_ = AddField(lbl5, QStringLiteral("txtTanks"), QPoint(280, 72), 3);
    lblAttack_ = AddCommand(QStringLiteral("lblAttack"), QStringLiteral("Attack"), QRect(336, 56, 60, 19));
    lblAttack_->SetKey(QStringLiteral("Enter"));
    Offer(*lblAttack_, WhyNoAttack(game_));
    TakeTerritories({txtC1_, txtC2_});
    connect(lblAttack_, &CommandLabel::clicked, this, &frmAttack::Attack);
    for (Field* field : {txtC1_, txtC2_, txtTroops_, txtTanks_}) {
        connect(field, &Field::Entered, this, &frmAttack::Attack);
    }
}

void frmAttack::AddStrikeHalf() {
    AddText(QStringLiteral("lbl2"), Face::Heading, QRect(0, 120, 120, 19), "Nuclear Attack:")
        ->setAlignment(Qt::AlignCenter);
    AddText(QStringLiteral("lblN"), Face::Status, QRect(123, 120, 270, 19), BombText(game_));
    TextLabel* label2 =
        AddText(QStringLiteral("Label2"), Face::Caption, QRect(16, 152, 102, 19), "Territory # to nuke:");
    txtN_ = AddField(label2, QStringLiteral("txtN"), QPoint(120, 152), 2);
    lblStrike_ =
        AddCommand(QStringLiteral("lblStrike"), QStringLiteral("Launch Nuke"), QRect(296, 144, 108, 19));
    lblStrike_->SetKey(QStringLiteral("Enter"));
    Offer(*lblStrike_, WhyNoStrike(game_));
    TakeTerritories({txtN_});
    connect(lblStrike_, &CommandLabel::clicked, this, &frmAttack::LaunchNuke);
    connect(txtN_, &Field::Entered, this, &frmAttack::LaunchNuke);
}

void frmAttack::Attack() {
    const OrderEntries entries{txtC1_->Typed(), txtC2_->Typed(), txtTroops_->Typed(), txtTanks_->Typed()};
    const auto outcome = Attck(game_, random_, entries);
    if (std::holds_alternative<Report>(outcome)) {
        sounds_.PlayWave(Wave::Gun);
    }
    std::visit([this](const auto& result) { Settle(result); }, outcome);
}

void frmAttack::LaunchNuke() {
    const auto outcome = Strike(game_, txtN_->Typed());
    if (std::holds_alternative<Report>(outcome)) {
        sounds_.PlayWave(Wave::Explode);
    }
    std::visit([this](const auto& result) { Settle(result); }, outcome);
}

}  // namespace vorlund
