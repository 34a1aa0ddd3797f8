// SPDX-License-Identifier: MIT
#include "ui/windows/frm3.h"

#include <QGuiApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWindow>
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

using namespace Qt::StringLiterals;

namespace {

constexpr int SelectionDelay = 20;  ///< milliseconds
constexpr int CountWidth = 56;
constexpr int TallestBelow = 277;  ///< pixels; of the reports and of the dialogs with territory fields

struct CommandPlace {
    QStringView Name;
    QStringView Caption;
    QPoint Position;
};

/// In the order of Command
constexpr std::array<CommandPlace, NumCommands> CommandBar{{{u"lblBuy", u"&Buy", {112, 436}},
                                                            {u"lblSell", u"&Sell", {112, 464}},
                                                            {u"lblTransport", u"T&ransport", {244, 436}},
                                                            {u"lblAttack", u"&Attack", {244, 464}},
                                                            {u"lblUpgrade", u"&Upgrade", {392, 436}},
                                                            {u"lblStatus", u"S&tatus", {392, 464}},
                                                            {u"lblEndTurn", u"&End Turn", {532, 436}},
                                                            {u"lblSave", u"Sa&ve", {532, 464}}}};

/// The letter after "&" in the caption, in lower case: the key that runs the command.
QChar LetterOf(Command command) {
    const QStringView caption = CommandBar[static_cast<std::size_t>(command)].Caption;
    return caption[caption.indexOf(u'&') + 1].toLower();
}

QString Indexed(const QString& name, int index) {
    return u"%1(%2)"_s.arg(name).arg(index);
}

/// The widest plate that the count of territory index `t` can have without overlapping another count.
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
    return Picture(u"marker%1"_s.arg(player), u"Player %1"_s.arg(player + 1));
}

}  // namespace

frm3::frm3(const GameState& game, GameNavigation& navigation)
    : BoardWindow(nullptr, u"frm3"_s, u"Vorlund"_s, Size, u"map"_s),
      game_(game),
      navigation_(navigation),
      imgSet_{MarkerOf(0), MarkerOf(1), MarkerOf(2), MarkerOf(3), MarkerOf(4)},
      imgExtraSet_{Picture(u"extra0"_s, u"Defense"_s), Picture(u"extra1"_s, u"Factory"_s),
                   Picture(u"extra2"_s, u"Factory and defense"_s)},
      gameOver_(u"gameover"_s, u"Game over"_s),
      cursor_(*this, game),
      tip_(new MapTip(this)),
      roster_(*this, imgSet_),
      land_(Background(), map_) {
    setFocusPolicy(Qt::TabFocus);  // a click leaves the focus where it is
    connect(&picker_, &TerritoryPicker::Changed, this, &frm3::RefreshCandidates);
    connect(&picker_, &TerritoryPicker::Walked, this, &frm3::TellTerritory);
    connect(&cursor_, &MapCursor::Moved, this, [this] {
        RefreshPointed();
        if (const auto territory = cursor_.Focused()) {
            TellTerritory(*territory);
        }
    });
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](QWindow* window) {
        lastWindow_ = window != nullptr && window != windowHandle() ? window : lastWindow_.data();
    });
    AddMarkers();
    AddCommandBar();
    AddText(u"help"_s, Face::Caption, QRect(668, 468, 70, 15), "F1: the rules")
        ->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    imgGameOver_ = new PictureLabel(this, u"imgGameOver"_s, QRect(29, 32, 692, 381));
    imgGameOver_->hide();
    verdict_ = AddText(u"verdict"_s, Face::Verdict, QRect(80, 367, 590, 32));
    verdict_->setAlignment(Qt::AlignCenter);
    verdict_->hide();
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
        marker.imgCntry = new PictureLabel(this, Indexed(u"imgCntry"_s, t), QRect(0, 0, 10, 10));
        marker.imgExtra = new PictureLabel(this, Indexed(u"imgExtra"_s, t), QRect(0, 0, 10, 10));
        markers_[static_cast<std::size_t>(t)] = marker;
    }
    // Made after all markers and so stacked above them: a neighbour's marker must not cover a digit.
    for (int t = 0; t < NumTerritories; ++t) {
        Marker& marker = markers_[static_cast<std::size_t>(t)];
        marker.lblCntry = new CountLabel(this, Indexed(u"lblCntry"_s, t), QRect(0, 0, CountWidth, 17));
        marker.lblCntry->SetRoom(RoomForCount(t));
        marker.imgCntry->hide();
        marker.imgExtra->hide();
        marker.lblCntry->hide();
    }
}

void frm3::AddCommandBar() {
    for (const Command command : AllCommands) {
        const CommandPlace& place = CommandBar[static_cast<std::size_t>(command)];
        CommandLabel* label =
            AddCommand(place.Name.toString(), place.Caption.toString(), QRect(place.Position, QSize(90, 19)));
        label->SetKey(LetterOf(command).toUpper());
        connect(label, &CommandLabel::clicked, this, [this, command] { Run(command); });
        commands_[static_cast<std::size_t>(command)] = label;
    }
}

void frm3::Open() {
    if (game_.GameLoaded) {
        SetBoardTitle(TurnTitle(game_));
        RefreshMap();
        SetCommands(AvailableCommands(game_));
    } else {
        SetCommands(CommandSet::None());
        tmrFirst_.start();
    }
    PlaceAbove(TallestBelow);
    Present();
}

void frm3::RefreshMap() {
    RefreshLand();
    for (std::size_t t = 0; t < markers_.size(); ++t) {
        RefreshTerritory(static_cast<int>(t), markers_[t]);
    }
    RefreshCandidates();
    RefreshRoster();
}

void frm3::RefreshRoster() {
    if (treasuryOf_ != game_.CurrentPlayer || game_.GameOver || game_.Current().IsDead) {
        treasuryOf_.reset();
    }
    roster_.Show(game_, treasuryOf_.has_value());
}

void frm3::SetBoardTitle(std::string_view title) {
    SetTitle(title);
    RefreshRoster();
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
}

void frm3::SetCommands(CommandSet available) {
    // Take the focus off the command bar: a second Enter after a report must not run the focused command.
    setFocus();
    for (const Command command : AllCommands) {
        const WhyNot whyNot = WhyUnavailable(game_, command);
        commands_[static_cast<std::size_t>(command)]->SetAvailable(
            available.Has(command), Displayed(whyNot.value_or("Another window wants to be closed first.")));
    }
    if (available != CommandSet::None()) {
        treasuryOf_ = game_.CurrentPlayer;
    }
    RefreshRoster();
}

void frm3::ShowGameOver(std::string_view verdict) {
    imgGameOver_->Show(&gameOver_);
    verdict_->Show(verdict);
    for (QWidget* widget : {static_cast<QWidget*>(imgGameOver_), static_cast<QWidget*>(verdict_)}) {
        widget->raise();
        widget->show();
    }
}

void frm3::ShowChanges(const MapChanges& changes) {
    ShowRims(Rim::Changed, changes.Changed);
    ShowRims(Rim::Conquered, changes.Conquered);
}

void frm3::ShowRims(Rim rim, const TerritorySet& territories) {
    for (const QRect& changed : rims_.Show(rim, territories)) {
        update(Zoomed(changed));
    }
}

void frm3::Run(Command command) {
    CommandLabel* label = commands_[static_cast<std::size_t>(command)];
    if (label->isEnabled()) {
        navigation_.RunCommand(command);
    } else {
        label->TellWhyNot();
    }
}

bool frm3::HandleCloseRequest() {
    if (!game_.GameOver &&
        !AskWithIcon(this,
                     "Closing this game window will end the game.\rAre you sure you want to continue?")) {
        return false;
    }
    navigation_.End();
    return true;
}

void frm3::AddTerritoryField(Field& field, const std::function<TerritorySet()>& candidates) {
    picker_.Add(field, candidates);
}

void frm3::RefreshCandidates() {
    const TerritorySet candidates = picker_.Candidates();
    ShowRims(Rim::Lit, candidates);
    RefreshPointed();
    if (picker_.Target() == nullptr) {
        PointAt(std::nullopt);
    } else {
        picker_.Describe(DescribeEntry(game_, picker_.Entered(), candidates));
    }
}

void frm3::RefreshPointed() {
    const auto entered = picker_.Entered();
    const auto focused = cursor_.Focused();
    ShowRims(Rim::Pointed,
             TerritoriesWhere([&](int t) { return t == pointed_ || t == entered || t == focused; }));
    if (tipOf_ && tipOf_ != entered && tipOf_ != focused) {
        tip_->hide();
        tipOf_.reset();
    }
}

std::optional<int> frm3::TerritoryAt(QPointF place) const {
    if (imgGameOver_->isVisible()) {
        return std::nullopt;
    }
    const auto isAt = [&](const QWidget* widget, const QRect& part) {
        return widget->isVisible() && part.translated(widget->pos()).contains(place.toPoint());
    };
    // A count may lie over a neighbour's marker.
    for (std::size_t t = 0; t < markers_.size(); ++t) {
        if (isAt(markers_[t].lblCntry, markers_[t].lblCntry->Plate())) {
            return static_cast<int>(t);
        }
    }
    for (std::size_t t = 0; t < markers_.size(); ++t) {
        const Marker& marker = markers_[t];
        if (isAt(marker.imgCntry, marker.imgCntry->rect()) ||
            isAt(marker.imgExtra, marker.imgExtra->rect())) {
            return static_cast<int>(t);
        }
    }
    return map_.At(place / Zoom::OfApplication().Factor());
}

void frm3::PointAt(std::optional<int> territory) {
    if (pointed_ != territory) {
        pointed_ = territory;
        RefreshPointed();
        setCursor(territory ? Qt::PointingHandCursor : Qt::ArrowCursor);
    }
}

void frm3::paintEvent(QPaintEvent* event) {
    Screen::paintEvent(event);
    QPainter painter(this);
    painter.setClipRegion(event->region());
    const qreal zoom = Zoom::OfApplication().Factor();
    painter.scale(zoom, zoom);
    land_.Paint(painter);
    QRegion part;  // in pixels of the layout
    for (const QRect& rect : event->region()) {
        part |= QRectF(QPointF(rect.topLeft()) / zoom, QSizeF(rect.size()) / zoom).toAlignedRect();
    }
    rims_.Paint(painter, part);
}

void frm3::mouseMoveEvent(QMouseEvent* event) {
    PointAt(picker_.Target() != nullptr ? TerritoryAt(event->position()) : std::nullopt);
    Screen::mouseMoveEvent(event);
}

void frm3::leaveEvent(QEvent* event) {
    PointAt(std::nullopt);
    Screen::leaveEvent(event);
}

void frm3::mousePressEvent(QMouseEvent* event) {
    Field* target = picker_.Target();
    const auto territory = TerritoryAt(event->position());
    const bool idle =
        std::none_of(commands_.begin(), commands_.end(), [](auto* c) { return c->isEnabled(); });
    if (target != nullptr && territory) {
        target->EnterTerritory(*territory + 1);
    } else if ((target != nullptr || idle) && !lastWindow_.isNull() && lastWindow_->isVisible()) {
        // The window manager has activated the board, whose keys do nothing now.
        lastWindow_->requestActivate();
    }
    Screen::mousePressEvent(event);
}

bool frm3::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        if (const auto territory = TerritoryAt(help->pos())) {
            // Escaped: a player may have typed markup as a name.
            const QString tip = FullDescription(game_, *territory).toHtmlEscaped();
            QToolTip::showText(help->globalPos(), u"<p style='white-space:pre'>%1</p>"_s.arg(tip), this);
        } else {
            QToolTip::hideText();
        }
        return true;
    }
    return Screen::event(event);
}

void frm3::TellTerritory(int territory) {
    const WorldEntry& entry = World[static_cast<std::size_t>(territory)];
    tip_->ShowBeside(QPoint(entry.MapX, entry.MapY), FullDescription(game_, territory));
    tipOf_ = territory;
}

void frm3::keyPressEvent(QKeyEvent* event) {
    const QString typed = IsPlain(*event) ? event->text().toLower() : QString();
    for (const Command command : AllCommands) {
        if (typed == LetterOf(command)) {
            Run(command);
            return;
        }
    }
    if (imgGameOver_->isVisible() || !cursor_.HandleKey(*event)) {
        Screen::keyPressEvent(event);
    }
}

}  // namespace vorlund
