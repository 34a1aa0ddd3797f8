// SPDX-License-Identifier: MIT
#include "ui/parts/button.h"

#include <QCoreApplication>
#include <QShortcutEvent>

#include "ui/parts/keys.h"

namespace vorlund {

Button::Button(QWidget* parent) : Placed(parent) {
    setCursor(Qt::PointingHandCursor);
}

void Button::PressByEvent() {
    QCoreApplication::postEvent(this, new QShortcutEvent({}, 0));
}

bool Button::event(QEvent* event) {
    if (event->type() == QEvent::Shortcut) {
        // click() instead of the toolkit's animateClick(), which clicks 100 ms later, when another window may
        // have opened.
        if (isVisible()) {
            click();
        }
        return true;
    }
    return QAbstractButton::event(event);
}

void Button::changeEvent(QEvent* event) {
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        setCursor(isEnabled() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    }
}

void Button::keyPressEvent(QKeyEvent* event) {
    // Not the arrow keys, with which the toolkit would move the focus: some windows use them otherwise.
    if (event->key() == Qt::Key_Space || (isCheckable() && !IsEnter(*event))) {
        QAbstractButton::keyPressEvent(event);
    } else {
        event->ignore();
    }
}

}  // namespace vorlund
