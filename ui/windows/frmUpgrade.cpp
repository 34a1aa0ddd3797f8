// SPDX-License-Identifier: MIT
#include "ui/windows/frmUpgrade.h"

#include "actions/buy.h"
#include "state/prices.h"
#include "ui/windows/dialog_host.h"

namespace vorlund {
namespace {

constexpr int Width = 258;

QString Numbered(const char* stem, int number) {
    return QString::fromLatin1(stem) + QString::number(number);
}

}  // namespace

frmUpgrade::frmUpgrade(DialogHost& host, GameState& game)
    : CommandDialog(host, QStringLiteral("frmUpgrade"), QStringLiteral("Vorlund - Upgrade"),
                    QSize(Width, 277)),
      game_(game) {
    lblTop_ = AddText(QStringLiteral("lblTop"), Face::Status, QRect(8, 4, Width - 16, 34));
    AddLine(QStringLiteral("Line1"), QPoint(12, 41), Width - 24);
    AddTrack(Track::Economy, "Economy", 1, 46);
    AddLine(QStringLiteral("Line2"), QPoint(12, 83), Width - 24);
    AddTrack(Track::Warfare, "Warfare", 2, 88);
    AddLine(QStringLiteral("Line3"), QPoint(12, 125), Width - 24);
    AddTrack(Track::Nuclear, "Nuclear", 3, 130);
    AddLine(QStringLiteral("Line6"), QPoint(12, 167), Width - 24);
    AddConstruction(1, 177, "Label7", "txtC1", QStringLiteral("Build Factory"), FactoryPrice, &Fact);
    AddConstruction(2, 227, "Label1", "txtC2", QStringLiteral("Build Defense"), DefensePrice, &Def);
    fields_[0]->setFocus();
    Update({});
}

void frmUpgrade::AddTrack(Track track, const char* name, int number, int y) {
    TrackRow row{track, AddText(Numbered("lbl", number), Face::Caption, QRect(12, y, 144, 32)),
                 AddCommand(Numbered("lblGo", number), QStringLiteral("Upgrade"), QRect(164, y + 6, 78, 19))};
    row.Go->setAccessibleDescription(QString::fromLatin1(name));
    row.Go->SetKey(QStringLiteral("Alt+%1").arg(number));
    row.Go->setShortcut(QKeySequence(row.Go->Key()));
    connect(row.Go, &CommandLabel::clicked, this, [this, track] {
        std::visit([this](const auto& outcome) { Settle(outcome); }, RaiseLevel(game_, track));
    });
    tracks_[static_cast<std::size_t>(number - 1)] = row;
}

void frmUpgrade::AddConstruction(int number, int y, const char* captionName, const char* fieldName,
                                 const QString& command, int price,
                                 std::variant<Refusal, Purchase> (*build)(GameState&, std::string_view)) {
    TextLabel* caption =
        AddText(QString::fromLatin1(captionName), Face::Caption, QRect(12, y, 62, 19), "Territory #:");
    Field* field = AddField(caption, QString::fromLatin1(fieldName), QPoint(76, y), 2);
    CommandLabel* go = AddCommand(Numbered("lblGo", number + 3), command, QRect(124, y, 118, 19));
    AddText(Numbered("lblP", number), Face::Caption, QRect(124, y + 22, 118, 16), "$" + std::to_string(price))
        ->setAlignment(Qt::AlignCenter);
    // The two captions are alike; who hears the screen is told what is built.
    field->setAccessibleDescription(command);
    go->SetKey(QStringLiteral("Enter"));
    const auto run = [this, field, build] {
        std::visit([this](const auto& outcome) { Settle(outcome); }, build(game_, field->Typed()));
    };
    connect(go, &CommandLabel::clicked, this, run);
    connect(field, &Field::Entered, this, run);
    TakeTerritories({field});
    fields_[static_cast<std::size_t>(number - 1)] = field;
}

void frmUpgrade::Update(const std::string& message) {
    for (Field* field : fields_) {
        field->clear();
    }
    lblTop_->Show(message + MoneyLine(game_));
    for (const TrackRow& row : tracks_) {
        row.Status->Show(StatusOf(game_, row.Which));
        Offer(*row.Go, WhyNoUpgrade(game_, row.Which));
    }
}

void frmUpgrade::Settle(const Purchase& purchase) {
    Update(purchase.Message);
    host().Board().RefreshMap();
}

}  // namespace vorlund
