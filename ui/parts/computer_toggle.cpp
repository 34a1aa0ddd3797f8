// SPDX-License-Identifier: MIT
#include "ui/parts/computer_toggle.h"

#include <QPainter>

#include "ui/parts/look.h"

namespace vorlund {

ComputerToggle::ComputerToggle(QWidget* parent, const QString& objectName, const QRect& frame)
    : Button(parent) {
    setObjectName(objectName);
    PlaceAt(frame);
    setCheckable(true);
}

void ComputerToggle::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = isChecked()    ? QColor(10, 14, 40)
                       : underMouse() ? QColor(colour::Hover)
                                      : QColor(150, 160, 190);
    const qreal unit = width() / 21.0;  // one pixel of the layout, in which the toggle is 21 wide
    painter.setPen(QPen(QColor(120, 130, 160), 1.4 * unit));
    painter.setBrush(isChecked() ? QColor(120, 220, 120) : QColor(14, 18, 34));
    painter.drawRoundedRect(QRectF(rect()).adjusted(unit, unit, -unit, -unit), 3 * unit, 3 * unit);
    // The icon: a monitor, its stand and a keyboard
    painter.setPen(QPen(ink, 1.5 * unit));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(5 * unit, 4 * unit, 10 * unit, 7 * unit));
    painter.drawLine(QPointF(10 * unit, 11 * unit), QPointF(10 * unit, 13.5 * unit));
    painter.drawLine(QPointF(4.5 * unit, 15 * unit), QPointF(15.5 * unit, 15 * unit));
}

void ComputerToggle::enterEvent(QEnterEvent* event) {
    Button::enterEvent(event);
    update();
}

void ComputerToggle::leaveEvent(QEvent* event) {
    Button::leaveEvent(event);
    update();
}

}  // namespace vorlund
