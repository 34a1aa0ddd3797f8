// SPDX-License-Identifier: MIT
#include "ui/windows/frm3.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cstdlib>
#include <string>

#include "state/world.h"
#include "turn/turn_cycle.h"
#include "ui/parts/keys.h"
#include "ui/parts/message_box.h"
#include "ui/windows/game_navigation.h"
#include "ui/windows/territory_text.h"

namespace vorlund {
namespace {

constexpr int SelectionDelay = 20;  // milliseconds
constexpr int CountWidth = 56;

struct CommandPlace {
    const char* Name = nullptr;
    const char* Caption = nullptr;
    QPoint Position;
};

// In the order of Command
constexpr std::array<CommandPlace, NumCommands> CommandBar{{{"lblBuy", "&Buy", {112, 436}},
                                                            {"lblSell", "&Sell", {112, 464}},
                                                            {"lblTransport", "T&ransport", {244, 436}},
                                                            {"lblAttack", "&Attack", {244, 464}},
                                                            {"lblUpgrade", "&Upgrade", {392, 436}},
                                                            {"lblStatus", "S&tatus", {392, 464}},
                                                            {"lblEndTurn", "&End Turn", {532, 436}},
                                                            {"lblSave", "Sa&ve", {532, 464}}}};

/// The letter behind "&" in the caption, small: the command's key and its accelerator.
QChar LetterOf(Command command) {
    const QString caption = QString::fromLatin1(CommandBar[static_cast<std::size_t>(command)].Caption);
    return caption[caption.indexOf(u'&') + 1].toLower();
}

QString Indexed(const char* name, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

/// The width that the count of territory index `t` can have without running into a neighbour's.
int RoomForCount(int t) {
    constexpr int plateHeight = 12;
    const WorldEntry& territory = World[static_cast<std::size_t>(t)];
    int room = CountWidth;
    for (const WorldEntry& other : World) {
        if (&other != &territory && std::abs(other.MapY - territory.MapY) < plateHeight) {
            room = std::min(room, std::abs(other.MapX - territory.MapX));
        }
    }
    return room;
}

Picture MarkerOf(int player) {
    return Picture(QStringLiteral("marker%1").arg(player), QStringLiteral("Player %1").arg(player + 1));
}

}  // namespace

frm3::frm3(const GameState& game, GameNavigation& navigation)
    : BoardWindow(nullptr, QStringLiteral("frm3"), QStringLiteral("Vorlund"), Size, QStringLiteral("map")),
      game_(game),
      navigation_(navigation),
      imgSet_{MarkerOf(0), MarkerOf(1), MarkerOf(2), MarkerOf(3), MarkerOf(4)},
      imgExtraSet_{Picture(QStringLiteral("extra0"), QStringLiteral("Defense")),
                   Picture(QStringLiteral("extra1"), QStringLiteral("Factory")),
                   Picture(QStringLiteral("extra2"), QStringLiteral("Factory and defense"))},
      gameOver_(QStringLiteral("gameover"), QStringLiteral("Game over")),
      land_(Background(), map_) {
    setFocusPolicy(Qt::StrongFocus);
    AddMarkers();
    AddCommandBar();
    imgGameOver_ = new PictureLabel(this, QStringLiteral("imgGameOver"), QRect(29, 32, 692, 381));
    imgGameOver_->hide();
    tmrFirst_.setSingleShot(true);
    tmrFirst_.setInterval(SelectionDelay);
    connect(&tmrFirst_, &QTimer::timeout, this, [this] {
        if (isVisible()) {
            navigation_.SelectTerritories();
        }
    });
}

void frm3::AddMarkers() {
    for (int t = 0; t < NumTerritories; ++t) {
        Marker marker{};
        marker.imgCntry = new PictureLabel(this, Indexed("imgCntry", t), QRect(0, 0, 10, 10));
        marker.imgExtra = new PictureLabel(this, Indexed("imgExtra", t), QRect(0, 0, 10, 10));
        markers_[static_cast<std::size_t>(t)] = marker;
    }
    // The counts lie above all markers, so that a neighbour's marker never covers a digit.
    for (int t = 0; t < NumTerritories; ++t) {
        Marker& marker = markers_[static_cast<std::size_t>(t)];
        marker.lblCntry = new CountLabel(this, Indexed("lblCntry", t), QRect(0, 0, CountWidth, 17));
        marker.lblCntry->SetRoom(RoomForCount(t));
        marker.imgCntry->hide();
        marker.imgExtra->hide();
        marker.lblCntry->hide();
    }
}

void frm3::AddCommandBar() {
    for (const Command command : AllCommands) {
        const CommandPlace& place = CommandBar[static_cast<std::size_t>(command)];
        CommandLabel* label = AddCommand(QString::fromLatin1(place.Name), QString::fromLatin1(place.Caption),
                                         QRect(place.Position, QSize(90, 19)));
        label->setFocusPolicy(Qt::TabFocus);
        label->SetKey(LetterOf(command).toUpper());
        connect(label, &CommandLabel::clicked, this, [this, command] { Run(command); });
        commands_[static_cast<std::size_t>(command)] = label;
    }
}

void frm3::Open() {
    if (game_.GameLoaded) {
        SetTitle(TurnTitle(game_));
        RefreshMap();
        SetCommands(AvailableCommands(game_));
    } else {
        SetCommands(CommandSet::None());
        tmrFirst_.start();
    }
    Present();
}

void frm3::RefreshMap() {
    RefreshLand();
    for (std::size_t t = 0; t < markers_.size(); ++t) {
        RefreshTerritory(static_cast<int>(t), markers_[t]);
    }
}

void frm3::RefreshLand() {
    OwnerMap::Owners owners{};
    for (int t = 0; t < NumTerritories; ++t) {
        const Territory& territory = game_.TerritoryAt(t);
        owners[static_cast<std::size_t>(t)] = territory.Occupied ? territory.Owner : OwnerMap::Nobody;
    }
    for (const QRect& changed : land_.Show(owners)) {
        update(Zoomed(changed));
    }
}

void frm3::RefreshTerritory(int t, const Marker& marker) {
    const Territory& territory = game_.TerritoryAt(t);
    const bool built = territory.HasFactory || territory.HasDefense;
    marker.imgCntry->setVisible(territory.Occupied);
    marker.imgExtra->setVisible(territory.Occupied && built);
    marker.lblCntry->setVisible(territory.Occupied);
    if (!territory.Occupied) {
        return;
    }
    const int x = territory.MapX;
    const int y = territory.MapY;
    marker.imgCntry->Show(&imgSet(territory.Owner));
    marker.imgCntry->PlaceAt(QRect(built ? x - 10 : x - 5, y, 10, 10));
    if (built) {
        const std::size_t both = territory.HasFactory && territory.HasDefense ? 1 : 0;
        marker.imgExtra->Show(&imgExtraSet_[(territory.HasFactory ? 1 : 0) + both]);
        marker.imgExtra->PlaceAt(QRect(x, y, 10, 10));
    }
    marker.lblCntry->PlaceAt(QRect(x - 28, y + 12, 56, 17));
    marker.lblCntry->Show(std::to_string(territory.Stationed.Troops) + "/" +
                          std::to_string(territory.Stationed.Tanks));
    marker.lblCntry->setAccessibleName(ShortDescription(game_, t));
}

void frm3::SetCommands(CommandSet available) {
    // The keyboard goes back to the board itself: an Enter too many after a report must not run a command.
    setFocus();
    for (const Command command : AllCommands) {
        const WhyNot whyNot = WhyUnavailable(game_, command);
        commands_[static_cast<std::size_t>(command)]->SetAvailable(
            available.Has(command), Displayed(whyNot.value_or("Another window wants to be closed first.")));
    }
}

void frm3::ShowGameOver() {
    imgGameOver_->Show(&gameOver_);
    imgGameOver_->raise();
    imgGameOver_->show();
}

void frm3::Run(Command command) {
    if (commands_[static_cast<std::size_t>(command)]->isEnabled()) {
        navigation_.RunCommand(command);
    }
}

bool frm3::CloseRequested() {
    if (!game_.GameOver &&
        !AskWithIcon(this,
                     "Closing this game window will end the game.\rAre you sure you want to continue?")) {
        return false;
    }
    navigation_.End();
    return true;
}

void frm3::TypeInto(Field& field) {
    connect(&field, &Field::TerritoryWanted, this, [this, &field] { territoryField_ = &field; });
}

void frm3::paintEvent(QPaintEvent* event) {
    Screen::paintEvent(event);
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.scale(Zoom::OfApplication().Factor(), Zoom::OfApplication().Factor());
    land_.Paint(painter);
}

void frm3::mousePressEvent(QMouseEvent* event) {
    const auto territory = map_.At(event->position() / Zoom::OfApplication().Factor());
    if (territory && !territoryField_.isNull() && territoryField_->isVisible()) {
        territoryField_->TypeTerritory(*territory + 1);
    }
    Screen::mousePressEvent(event);
}

bool frm3::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        ShowTerritoryTip(*static_cast<QHelpEvent*>(event));
        return true;
    }
    return Screen::event(event);
}

void frm3::ShowTerritoryTip(const QHelpEvent& event) {
    const auto territory = map_.At(QPointF(event.pos()) / Zoom::OfApplication().Factor());
    if (!territory || imgGameOver_->isVisible()) {
        QToolTip::hideText();
        return;
    }
    // As plain text: a player's name is whatever was typed.
    const QString tip = FullDescription(game_, *territory).toHtmlEscaped();
    QToolTip::showText(event.globalPos(), QStringLiteral("<p style='white-space:pre'>%1</p>").arg(tip), this);
}

void frm3::keyPressEvent(QKeyEvent* event) {
    const QString typed = IsPlain(*event) ? event->text().toLower() : QString();
    for (const Command command : AllCommands) {
        if (typed == LetterOf(command)) {
            Run(command);
            return;
        }
    }
    Screen::keyPressEvent(event);
}

}  // namespace vorlund
