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
    if (IsEnter(*event)) {
        event->ignore();
    } else {
        QAbstractButton::keyPressEvent(event);
    }
}

}  // namespace vorlund
