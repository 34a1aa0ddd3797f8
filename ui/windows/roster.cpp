// SPDX-License-Identifier: MIT
#include "ui/windows/roster.h"

#include <QPainter>
#include <QStringList>

#include "actions/battle.h"
#include "actions/transport.h"
#include "state/ownership.h"
#include "turn/commands.h"
#include "turn/turn_cycle.h"
#include "turn/victory.h"
#include "ui/parts/look.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

// In pixels of the layout
constexpr QPoint Corner(25, 490);
constexpr QSize Cell(140, 16);
constexpr int Margin = 8;
constexpr int Gap = 5;
constexpr int MarkerSize = 10;
constexpr QSizeF ComputerSize(10, 9);

constexpr QRgb Words = qRgb(226, 230, 236);
constexpr QRgb Caption = qRgb(160, 174, 194);
constexpr QRgb Figure = qRgb(240, 226, 184);
constexpr QRgb Dead = qRgb(140, 148, 160);
constexpr QRgb Plate = qRgb(30, 48, 76);
constexpr QRgb Rule = qRgb(58, 62, 66);
constexpr QRgb Rim = qRgb(214, 190, 128);

QFont WordsFont(bool bold) {
    QFont font = FontOf(Face::Caption);
    font.setBold(bold);
    return font;
}

QString Territories(int number) {
    return number == 1 ? u"1 territory"_s : u"%1 territories"_s.arg(number);
}

RosterCell::Content PlayerContent(const GameState& game, int p, const Picture& marker) {
    const Player& player = game.PlayerAt(p);
    RosterCell::Content content;
    content.Marker = &marker;
    content.Words = Displayed(player.Name);
    content.IsComputer = player.IsComputer;
    content.IsDead = player.IsDead;
    content.IsMarked = HasTurn(game, p) || HasWon(game, p);
    QStringList details{u"player %1"_s.arg(p + 1)};
    if (player.IsComputer) {
        details << u"computer"_s;
    }
    if (player.IsDead) {
        details << u"dead"_s;
    } else {
        content.Figure = QString::number(CountOwned(game, p));
        details << Territories(CountOwned(game, p));
    }
    if (content.IsMarked) {
        details << (HasTurn(game, p) ? u"on turn"_s : u"has won"_s);
    }
    content.Name = content.Words;
    content.Details = details.join(u", "_s);
    return content;
}

RosterCell::Content FigureContent(const QString& words, const QString& figure, const QString& unit = {}) {
    RosterCell::Content content;
    content.Words = words;
    content.Figure = figure;
    content.Name = words + u": "_s + figure + unit;
    return content;
}

std::array<RosterCell::Content, 5> Treasury(const GameState& game) {
    const Player& player = game.Current();
    const WhyNot whyNoAttack = WhyUnavailable(game, Command::Attack);
    return {
        FigureContent(u"Money"_s, u"$%1"_s.arg(player.Money)),
        FigureContent(u"Oil"_s, QString::number(player.Oil), player.Oil == 1 ? u" barrel"_s : u" barrels"_s),
        FigureContent(u"Moves left"_s, QString::number(MovesToMake(game))),
        FigureContent(u"Attacks left"_s, whyNoAttack ? u"not yet"_s : QString::number(AttacksToMake(game))),
        FigureContent(u"Nuclear bomb"_s, player.HasNuke ? u"ready"_s : u"none"_s)};
}

}  // namespace

RosterCell::RosterCell(QWidget* parent, const QString& objectName, const QRect& frame) : Placed(parent) {
    setObjectName(objectName);
    PlaceAt(frame);
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::TabFocus);  // so that screen readers read cell by cell
    setMouseTracking(true);        // for the board's commands, which rest when the pointer is here
}

void RosterCell::Show(const Content& content) {
    if (content == content_) {
        return;
    }
    content_ = content;
    setAccessibleName(content.Name);
    QPalette letters = palette();
    letters.setColor(QPalette::WindowText, content.IsDead              ? QColor(Dead)
                                           : content.Marker == nullptr ? QColor(Caption)
                                                                       : QColor(Words));
    setPalette(letters);
    if (!content.Details.isEmpty()) {
        setAccessibleDescription(content.Details);
        // As plain text: a player's name is whatever was typed.
        const QString tip = content.Name + u", "_s + content.Details;
        setToolTip(u"<p style='white-space:pre'>%1</p>"_s.arg(tip.toHtmlEscaped()));
    }
    ZoomChanged();
    update();
}

void RosterCell::ZoomChanged() {
    const qreal unit = Zoom::OfApplication().Factor();
    wordsRoom_ = QRectF(rect()).adjusted(Margin * unit, 0, -Margin * unit, 0);
    if (content_.Marker != nullptr) {
        wordsRoom_.setLeft(wordsRoom_.left() + (MarkerSize + Gap) * unit);
    }
    const qreal figure = QFontMetricsF(WordsFont(true)).horizontalAdvance(content_.Figure);
    wordsRoom_.setRight(wordsRoom_.right() - figure - Gap * unit);
    if (content_.IsComputer) {
        computerRoom_ = QRectF(QPointF(), ComputerSize * unit);
        computerRoom_.moveCenter(wordsRoom_.center());
        computerRoom_.moveRight(wordsRoom_.right());
        wordsRoom_.setRight(computerRoom_.left() - Gap * unit);
    }
    const int width = static_cast<int>(wordsRoom_.width());
    QFont font = Fitted(WordsFont(content_.IsMarked), content_.Words, width);
    font.setStrikeOut(content_.IsDead);
    setFont(font);
    setText(fontMetrics().elidedText(content_.Words, Qt::ElideRight, width));
}

void RosterCell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal unit = Zoom::OfApplication().Factor();
    if (Frame().left() > Corner.x()) {
        painter.fillRect(QRectF(0, 0, unit, height()), QColor(Rule));
    }
    if (content_.IsMarked) {
        painter.setPen(QPen(QColor(Rim), unit));
        painter.setBrush(QColor(Plate));
        painter.drawRoundedRect(QRectF(rect()).adjusted(2.5 * unit, unit / 2, -1.5 * unit, -unit / 2),
                                3 * unit, 3 * unit);
    }
    if (content_.Marker != nullptr) {
        const int top = (height() - Zoomed(MarkerSize)) / 2;
        painter.drawPixmap(Zoomed(Margin), top, content_.Marker->At(devicePixelRatioF()));
    }
    if (content_.IsComputer) {
        PaintComputer(painter);
    }
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(wordsRoom_, Qt::AlignLeft | Qt::AlignVCenter, text());
    painter.setFont(WordsFont(true));
    painter.setPen(QColor(Figure));
    painter.drawText(QRectF(rect()).adjusted(0, 0, -Margin * unit, 0), Qt::AlignRight | Qt::AlignVCenter,
                     content_.Figure);
}

/// A screen on its foot.
void RosterCell::PaintComputer(QPainter& painter) const {
    const qreal unit = Zoom::OfApplication().Factor();
    const QRectF& room = computerRoom_;
    painter.setPen(QPen(QColor(content_.IsDead ? Dead : Caption), unit));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(room.adjusted(unit / 2, unit / 2, -unit / 2, -2.5 * unit));
    painter.drawLine(room.bottomLeft() + QPointF(2 * unit, -unit / 2),
                     room.bottomRight() + QPointF(-2 * unit, -unit / 2));
}

Roster::Roster(QWidget& board, const std::array<Picture, MaxPlayers>& markers) : markers_(markers) {
    const auto add = [&board](const char* name, std::size_t column, int line) {
        const QPoint corner = Corner + QPoint(static_cast<int>(column) * Cell.width(), line * Cell.height());
        auto* cell =
            new RosterCell(&board, u"%1(%2)"_s.arg(QLatin1String(name)).arg(column), QRect(corner, Cell));
        cell->hide();
        return cell;
    };
    for (std::size_t p = 0; p < players_.size(); ++p) {
        players_[p] = add("player", p, 0);
    }
    for (std::size_t i = 0; i < treasury_.size(); ++i) {
        treasury_[i] = add("treasury", i, 1);
    }
}

void Roster::Show(const GameState& game, bool withTreasury) {
    for (int p = 0; p < game.NumPlayers; ++p) {
        const auto index = static_cast<std::size_t>(p);
        players_[index]->Show(PlayerContent(game, p, markers_[index]));
        players_[index]->show();
    }
    const auto figures = Treasury(game);
    for (std::size_t i = 0; i < treasury_.size(); ++i) {
        treasury_[i]->Show(figures[i]);
        treasury_[i]->setVisible(withTreasury);
    }
}

}  // namespace vorlund
