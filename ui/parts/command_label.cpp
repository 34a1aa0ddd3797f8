// SPDX-License-Identifier: MIT
#include "ui/parts/command_label.h"

#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "ui/parts/announcement.h"
#include "ui/parts/keys.h"
#include "ui/parts/look.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

const QColor LightPlate(255, 251, 232);
const QColor LightRim(190, 168, 112);
const QColor Outline(0, 0, 64);
const QColor DisabledInk(150, 156, 170);
constexpr qreal CornerRadius = 4;
constexpr int MarkWidth = 16;  ///< the room for the ring of a radio button, left of its text

}  // namespace

CommandLabel::CommandLabel(QWidget* parent, const QString& objectName, const QString& caption,
                           const QRect& box)
    : Button(parent) {
    setObjectName(objectName);
    setText(caption);
    setShortcut({});  // no Alt accelerator: the window handles the bare letter that "&" underlines
    PlaceAt(box.adjusted(-PlateX, -PlateY, PlateX, PlateY));
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    FitCaption();
}

void CommandLabel::FitCaption() {
    // The plate is wider than the text's box: a caption that fits the plate keeps its full size.
    setFont(Fitted(FontOf(Face::Command), text().remove(u'&'), width() - Zoomed(PlateX)));
}

void CommandLabel::SetPlate(QSize size) {
    QRect plate(QPoint(), size);
    plate.moveCenter(Frame().center());
    PlaceAt(plate);
}

void CommandLabel::SetAvailable(bool available, const QString& whyNot) {
    setEnabled(available);
    setToolTip(available ? KeyTip() : whyNot);
}

void CommandLabel::TellWhyNot() {
    if (!isEnabled()) {
        QToolTip::showText(mapToGlobal(QPoint(0, height())), toolTip(), this);
        Announce(*this, toolTip());
    }
}

void CommandLabel::SetKey(const QString& key) {
    key_ = key;
    setToolTip(KeyTip());
}

QString CommandLabel::KeyTip() const {
    return key_.isEmpty() ? QString() : u"Key: "_s + key_;
}

void CommandLabel::Rest() {
    SetState(State::Rest);
}

void CommandLabel::SetState(State state) {
    if (state_ != state) {
        state_ = state;
        update();
    }
}

void CommandLabel::PaintPlate(QPainter& painter) const {
    const qreal zoom = Zoom::OfApplication().Factor();
    const QRectF plate = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const qreal radius = CornerRadius * zoom;
    if (isEnabled() && state_ == State::Rest) {
        painter.setPen(QPen(LightRim, zoom));
        painter.setBrush(LightPlate);
        painter.drawRoundedRect(plate, radius, radius);
    } else if (isEnabled()) {
        const qreal rim = 2 * zoom;
        painter.setPen(QPen(QColor(colour::Hover), rim));
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(plate.adjusted(rim / 2, rim / 2, -rim / 2, -rim / 2), radius, radius);
    }
}

void CommandLabel::PaintMark(QPainter& painter, const QColor& ink) const {
    const qreal zoom = Zoom::OfApplication().Factor();
    const QPointF middle((PlateX + MarkWidth / 2.0) * zoom, height() / 2.0);
    painter.setPen(QPen(ink, 1.4 * zoom));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(middle, 5 * zoom, 5 * zoom);
    if (isChecked()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawEllipse(middle, 2.6 * zoom, 2.6 * zoom);
    }
}

void CommandLabel::PaintText(QPainter& painter, const QRect& box, const QColor& ink) const {
    constexpr int flags = Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip;
    if (isEnabled() && state_ != State::Rest) {
        const int wide = Zoomed(1);
        painter.setPen(Outline);
        for (const QPoint& side : {QPoint(-1, -1), QPoint(0, -1), QPoint(1, -1), QPoint(-1, 0), QPoint(1, 0),
                                   QPoint(-1, 1), QPoint(0, 1), QPoint(1, 1)}) {
            painter.drawText(box.translated(side * wide), flags, text());
        }
    }
    painter.setPen(ink);
    painter.drawText(box, flags, text());
}

void CommandLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintPlate(painter);
    QColor ink = DisabledInk;
    if (isEnabled()) {
        ink = state_ == State::Rest ? colour::Rest : state_ == State::Hover ? colour::Hover : colour::Pressed;
    }
    QRect box = rect().adjusted(Zoomed(PlateX), Zoomed(PlateY), -Zoomed(PlateX), -Zoomed(PlateY));
    if (isCheckable()) {
        PaintMark(painter, ink);
        box.setLeft(box.left() + Zoomed(MarkWidth));
    }
    painter.setFont(font());
    box.translate(0, -Zoomed(1));  // room for the outlines of descenders
    PaintText(painter, box, ink);
}

void CommandLabel::enterEvent(QEnterEvent* event) {
    Button::enterEvent(event);
    if (isEnabled()) {
        SetState(State::Hover);
        emit Hovered();
    }
}

void CommandLabel::mouseMoveEvent(QMouseEvent* event) {
    Button::mouseMoveEvent(event);
    if (isEnabled()) {
        SetState(State::Hover);
        emit Hovered();
    }
    event->accept();
}

void CommandLabel::mousePressEvent(QMouseEvent* event) {
    Button::mousePressEvent(event);
    if (isEnabled()) {
        SetState(State::Pressed);
    }
    event->accept();
}

void CommandLabel::keyPressEvent(QKeyEvent* event) {
    if (IsEnter(*event) && !isCheckable()) {
        click();
    } else {
        Button::keyPressEvent(event);
    }
}

void CommandLabel::changeEvent(QEvent* event) {
    Button::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        state_ = State::Rest;
        update();
    }
}

}  // namespace vorlund
