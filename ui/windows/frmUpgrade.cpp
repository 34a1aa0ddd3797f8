// SPDX-License-Identifier: MIT
#include "ui/windows/frmUpgrade.h"

#include "actions/buy.h"
#include "state/prices.h"
#include "ui/windows/dialog_host.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

constexpr int Width = 258;

QString Numbered(const QString& stem, int number) {
    return stem + QString::number(number);
}

}  // namespace

frmUpgrade::frmUpgrade(DialogHost& host, GameState& game)
    : CommandDialog(host, u"frmUpgrade"_s, u"Vorlund - Upgrade"_s, QSize(Width, 277)), game_(game) {
    lblTop_ = AddText(u"lblTop"_s, Face::Status, QRect(8, 4, Width - 16, 34));
    lblTop_->SetLive();
    AddLine(u"Line1"_s, QPoint(12, 41), Width - 24);
    AddTrack(Track::Economy, u"Economy"_s, 1, 46);
    AddLine(u"Line2"_s, QPoint(12, 83), Width - 24);
    AddTrack(Track::Warfare, u"Warfare"_s, 2, 88);
    AddLine(u"Line3"_s, QPoint(12, 125), Width - 24);
    AddTrack(Track::Nuclear, u"Nuclear"_s, 3, 130);
    AddLine(u"Line6"_s, QPoint(12, 167), Width - 24);
    AddConstruction(1, 177, u"Label7"_s, u"txtC1"_s,
                    {u"Build Factory"_s, FactoryPrice, &Fact, &FactorySites});
    AddConstruction(2, 227, u"Label1"_s, u"txtC2"_s, {u"Build Defense"_s, DefensePrice, &Def, &DefenseSites});
    fields_[0]->setFocus();
    Update({});
}

void frmUpgrade::AddTrack(Track track, const QString& name, int number, int y) {
    TrackRow row{track, AddText(Numbered(u"lbl"_s, number), Face::Caption, QRect(12, y, 144, 32)),
                 AddCommand(Numbered(u"lblGo"_s, number), u"Upgrade"_s, QRect(164, y + 6, 78, 19))};
    row.Go->setAccessibleDescription(name);
    row.Go->SetKey(u"Alt+%1"_s.arg(number));
    row.Go->setShortcut(QKeySequence(row.Go->Key()));
    connect(row.Go, &CommandLabel::clicked, this, [this, track] {
        std::visit([this](const auto& outcome) { ShowOutcome(outcome); }, RaiseLevel(game_, track));
    });
    tracks_[static_cast<std::size_t>(number - 1)] = row;
}

void frmUpgrade::AddConstruction(int number, int y, const QString& captionName, const QString& fieldName,
                                 const Building& building) {
    TextLabel* caption = AddText(captionName, Face::Caption, QRect(12, y, 62, 19), "Territory #:");
    Field* field = AddField(caption, fieldName, QPoint(76, y), 2);
    CommandLabel* go = AddCommand(Numbered(u"lblGo"_s, number + 3), building.Command, QRect(124, y, 118, 19));
    AddText(Numbered(u"lblP"_s, number), Face::Caption, QRect(124, y + 22, 118, 16),
            "$" + std::to_string(building.Price))
        ->setAlignment(Qt::AlignCenter);
    // Both fields have the same caption; the description tells them apart for screen readers.
    field->setAccessibleDescription(building.Command);
    go->SetKey(u"Enter"_s);
    const auto run = [this, field, build = building.Build] {
        std::visit([this](const auto& outcome) { ShowOutcome(outcome); }, build(game_, field->Typed()));
    };
    connect(go, &CommandLabel::clicked, this, run);
    connect(field, &Field::Entered, this, run);
    AcceptTerritoryClicks({{field, [this, sites = building.Sites] { return sites(game_); }}});
    fields_[static_cast<std::size_t>(number - 1)] = field;
}

void frmUpgrade::Update(const std::string& message) {
    for (Field* field : fields_) {
        field->clear();
    }
    lblTop_->Show(message + MoneyLine(game_));
    for (const TrackRow& row : tracks_) {
        row.Status->Show(StatusOf(game_, row.Which));
        EnableUnless(*row.Go, WhyNoUpgrade(game_, row.Which));
    }
}

void frmUpgrade::keyPressEvent(QKeyEvent* event) {
    // The accelerator of a disabled command does not trigger and gets here.
    for (const TrackRow& row : tracks_) {
        if (QKeySequence(event->keyCombination()) == QKeySequence(row.Go->Key())) {
            row.Go->TellWhyNot();
        }
    }
    CommandDialog::keyPressEvent(event);
}

void frmUpgrade::ShowOutcome(const Purchase& purchase) {
    Update(purchase.Message);
    Host().Board().RefreshMap();
}

}  // namespace vorlund
