// SPDX-License-Identifier: MIT
#include "ui/parts/field.h"

#include <QWheelEvent>
#include <algorithm>

#include "ui/parts/keys.h"

namespace vorlund {
namespace {

int StepSize(Qt::KeyboardModifiers modifiers) {
    return modifiers.testFlag(Qt::ShiftModifier) ? 10 : 1;
}

}  // namespace

Field::Field(QWidget* parent, const QString& objectName, const QRect& frame, int maxLength) : Placed(parent) {
    setObjectName(objectName);
    PlaceAt(frame);
    setMaxLength(maxLength);
    setFrame(false);  // without a frame no style paints a focus ring inside the one of the window
    setTextMargins(1, 0, 1, 0);
    QPalette colours = palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        colours.setColor(group, QPalette::Base,
                         group == QPalette::Disabled ? QColor(190, 194, 204) : Qt::white);
        colours.setColor(group, QPalette::Text, Qt::black);
    }
    setPalette(colours);
}

void Field::AcceptTerritoryClicks(Field* next) {
    acceptsTerritoryClicks_ = true;
    next_ = next;
}

void Field::ShowNumber(int number) {
    setText(QString::number(number));
    selectAll();
}

void Field::EnterTerritory(int number) {
    setText(QString::number(number));
    window()->activateWindow();
    Field* focus = next_ != nullptr ? next_ : this;
    focus->setFocus();
    focus->selectAll();
}

void Field::AcceptSteps(std::function<Limit()> limit) {
    limit_ = std::move(limit);
    setFocusPolicy(Qt::WheelFocus);
    DescribeLimit();
}

void Field::DescribeLimit() {
    if (limit_) {
        const QString text = limit_().Text;
        setToolTip(text);
        setAccessibleDescription(text);
    }
}

void Field::Step(int by) {
    const int before = text().toInt();
    const int after = std::clamp(before + by, 0, limit_().Most);
    if (after != before) {
        ShowNumber(after);
    }
}

std::string Field::Typed() const {
    // The conversion turns a lone surrogate into a question mark. 0xFF occurs in no UTF-8 text, so the rules
    // refuse this one.
    return text().toStdString() + (text().isValidUtf16() ? "" : "\xFF");
}

bool Field::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        DescribeLimit();
    }
    return QLineEdit::event(event);
}

void Field::focusInEvent(QFocusEvent* event) {
    // Before the toolkit tells assistive technologies of the focus, because both change the description
    DescribeLimit();
    if (acceptsTerritoryClicks_) {
        emit TerritoryFieldFocused();
    }
    QLineEdit::focusInEvent(event);
}

bool Field::HandleTerritoryKey(const QKeyEvent& event) {
    const int key = event.key();
    if (IsPlain(event) && (key == Qt::Key_Up || key == Qt::Key_Down)) {
        emit TerritoryStepped(key == Qt::Key_Down ? 1 : -1);
        return true;
    }
    if ((event.modifiers() & ~Qt::KeypadModifier) == Qt::AltModifier && IsArrow(key)) {
        emit TerritoryWalked(key);
        return true;
    }
    return false;
}

void Field::keyPressEvent(QKeyEvent* event) {
    const bool up = event->key() == Qt::Key_Up;
    if (IsEnter(*event)) {
        emit Entered();
    } else if (limit_ && IsPlain(*event) && (up || event->key() == Qt::Key_Down)) {
        Step((up ? 1 : -1) * StepSize(event->modifiers()));
    } else if (!acceptsTerritoryClicks_ || !HandleTerritoryKey(*event)) {
        QLineEdit::keyPressEvent(event);
    }
}

void Field::wheelEvent(QWheelEvent* event) {
    if (!limit_) {
        QLineEdit::wheelEvent(event);
        return;
    }
    // With Shift some systems report the wheel as a horizontal one.
    const QPoint angle = event->angleDelta();
    const bool horizontal = angle.y() == 0 && event->modifiers().testFlag(Qt::ShiftModifier);
    wheelAngle_ += horizontal ? angle.x() : angle.y();
    const int steps = wheelAngle_ / QWheelEvent::DefaultDeltasPerStep;
    wheelAngle_ -= steps * QWheelEvent::DefaultDeltasPerStep;
    Step(steps * StepSize(event->modifiers()));
    event->accept();
}

}  // namespace vorlund
