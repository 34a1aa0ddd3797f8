// SPDX-License-Identifier: MIT
#include "ui/parts/command_label.h"

#include <QMouseEvent>
#include <QPainter>

#include "ui/parts/keys.h"
#include "ui/parts/look.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

const QColor LightPlate(255, 251, 232);
const QColor LightRim(190, 168, 112);
const QColor DarkPlate(10, 14, 40);
const QColor DisabledPlate(70, 76, 92);
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
    setFocusPolicy(Qt::NoFocus);
    FitCaption();
}

void CommandLabel::FitCaption() {
    // The plate is wider than the text's box: a caption that fits the plate keeps its full size.
    setFont(Fitted(FontOf(Face::Command), text().remove(u'&'), width() - Zoomed(PlateX)));
}

void CommandLabel::SetAvailable(bool available, const QString& whyNot) {
    setEnabled(available);
    setToolTip(available ? KeyTip() : whyNot);
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
    if (!isEnabled()) {
        painter.setPen(QPen(DisabledPlate, zoom));
        painter.setBrush(QColor(18, 22, 34));
    } else if (state_ == State::Rest) {
        painter.setPen(QPen(LightRim, zoom));
        painter.setBrush(LightPlate);
    } else {
        painter.setPen(QPen(QColor(state_ == State::Hover ? colour::Hover : colour::Pressed), zoom));
        painter.setBrush(DarkPlate);
    }
    painter.drawRoundedRect(plate, radius, radius);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(colour::Focus), 1.3 * zoom));
        // At the edge of the plate, clear of the letters: light blue on amber has too little contrast.
        painter.drawRoundedRect(plate.adjusted(0.1, 0.1, -0.1, -0.1), radius, radius);
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
    painter.setPen(ink);
    painter.drawText(box, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip, text());
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
