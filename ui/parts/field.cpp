// SPDX-License-Identifier: MIT
#include "ui/parts/field.h"

#include "ui/parts/keys.h"

namespace vorlund {

Field::Field(QWidget* parent, const QString& objectName, const QRect& frame, int maxLength) : Placed(parent) {
    setObjectName(objectName);
    PlaceAt(frame);
    setMaxLength(maxLength);
    setFrame(false);  // a style draws a ring of its own in it, beside the window's
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

void Field::EnterTerritory(int number) {
    setText(QString::number(number));
    window()->activateWindow();
    (next_ != nullptr ? next_ : this)->setFocus();
}

std::string Field::Typed() const {
    // The conversion turns a lone surrogate into a question mark. 0xFF occurs in no UTF-8 text, so the rules
    // refuse this one.
    return text().toStdString() + (text().isValidUtf16() ? "" : "\xFF");
}

void Field::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (acceptsTerritoryClicks_) {
        emit TerritoryFieldFocused();
    }
}

void Field::keyPressEvent(QKeyEvent* event) {
    if (IsEnter(*event)) {
        emit Entered();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

}  // namespace vorlund
