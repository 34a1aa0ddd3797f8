// SPDX-License-Identifier: MIT
#include "ui/windows/frmAttack.h"

#include "actions/battle.h"
#include "actions/strike.h"
#include "ui/machine/sounds.h"

namespace vorlund {

using namespace Qt::StringLiterals;

frmAttack::frmAttack(DialogHost& host, GameState& game, Random& random, Sounds& sounds)
    : CommandDialog(host, u"frmAttack"_s, u"Vorlund - Attack"_s, QSize(414, 189)),
      game_(game),
      random_(random),
      sounds_(sounds) {
    AddBattleHalf();
    AddLine(u"Line1"_s, QPoint(22, 108), 370);
    AddStrikeHalf();
    AcceptSteps({{txtTroops_, [this] { return MostToAttack(game_, Entries(), Goods::Troops); }},
                 {txtTanks_, [this] { return MostToAttack(game_, Entries(), Goods::Tanks); }}});
    txtC1_->setFocus();
}

void frmAttack::AddBattleHalf() {
    AddText(u"lbl1"_s, Face::Heading, QRect(0, 8, 120, 19), "Normal Attack:")->setAlignment(Qt::AlignCenter);
    AddText(u"lblA"_s, Face::Status, QRect(127, 8, 270, 19), AttacksLeftText(game_));
    TextLabel* lbl3 = AddText(u"lbl3"_s, Face::Caption, QRect(16, 40, 110, 19), "Attacking territory #:");
    TextLabel* label1 = AddText(u"Label1"_s, Face::Caption, QRect(16, 72, 110, 19), "Defending territory #:");
    TextLabel* lbl4 = AddText(u"lbl4"_s, Face::Caption, QRect(176, 40, 102, 19), "Number of Troops:");
    TextLabel* lbl5 = AddText(u"lbl5"_s, Face::Caption, QRect(174, 72, 104, 19), "Number of Tanks:");
    txtC1_ = AddField(lbl3, u"txtC1"_s, QPoint(128, 40), 2);
    txtC2_ = AddField(label1, u"txtC2"_s, QPoint(128, 72), 2);
    txtTroops_ = AddField(lbl4, u"txtTroops"_s, QPoint(280, 40), 3);
    txtTanks_ = AddField(lbl5, u"txtTanks"_s, QPoint(280, 72), 3);
    lblAttack_ = AddCommand(u"lblAttack"_s, u"Attack"_s, QRect(336, 56, 60, 19));
    lblAttack_->SetKey(u"Enter"_s);
    EnableUnless(*lblAttack_, WhyNoAttack(game_));
    AcceptTerritoryClicks({{txtC1_, [this] { return AttackSources(game_); }},
                           {txtC2_, [this] { return AttackDestinations(game_, txtC1_->Typed()); }}},
                          txtTroops_);
    connect(lblAttack_, &CommandLabel::clicked, this, &frmAttack::Attack);
    for (Field* field : {txtC1_, txtC2_, txtTroops_, txtTanks_}) {
        connect(field, &Field::Entered, this, &frmAttack::Attack);
    }
}

void frmAttack::AddStrikeHalf() {
    AddText(u"lbl2"_s, Face::Heading, QRect(0, 120, 120, 19), "Nuclear Attack:")
        ->setAlignment(Qt::AlignCenter);
    AddText(u"lblN"_s, Face::Status, QRect(123, 120, 270, 19), BombText(game_));
    TextLabel* label2 = AddText(u"Label2"_s, Face::Caption, QRect(16, 152, 102, 19), "Territory # to nuke:");
    txtN_ = AddField(label2, u"txtN"_s, QPoint(120, 152), 2);
    lblStrike_ = AddCommand(u"lblStrike"_s, u"Launch Nuke"_s, QRect(296, 152, 108, 19));
    lblStrike_->SetKey(u"Enter"_s);
    EnableUnless(*lblStrike_, WhyNoStrike(game_));
    AcceptTerritoryClicks({{txtN_, [this] { return StrikeTargets(game_); }}});
    connect(lblStrike_, &CommandLabel::clicked, this, &frmAttack::LaunchNuke);
    connect(txtN_, &Field::Entered, this, &frmAttack::LaunchNuke);
}

OrderEntries frmAttack::Entries() const {
    return {txtC1_->Typed(), txtC2_->Typed(), txtTroops_->Typed(), txtTanks_->Typed()};
}

void frmAttack::Attack() {
    lblAttack_->TellWhyNot();
    const auto outcome = Attck(game_, random_, Entries());
    if (std::holds_alternative<Report>(outcome)) {
        sounds_.PlayWave(Wave::Gun);
    }
    std::visit([this](const auto& result) { ShowOutcome(result); }, outcome);
}

void frmAttack::LaunchNuke() {
    lblStrike_->TellWhyNot();
    const auto outcome = Strike(game_, txtN_->Typed());
    if (std::holds_alternative<Report>(outcome)) {
        sounds_.PlayWave(Wave::Explode);
    }
    std::visit([this](const auto& result) { ShowOutcome(result); }, outcome);
}

}  // namespace vorlund
