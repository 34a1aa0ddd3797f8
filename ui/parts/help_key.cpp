// SPDX-License-Identifier: MIT
#include "ui/parts/help_key.h"

#include <QApplication>
#include <QKeyEvent>
#include <utility>

namespace vorlund {

HelpKey::HelpKey(std::function<void()> open) : open_(std::move(open)) {
    qApp->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWindowType() ||
        QApplication::activeModalWidget() != nullptr) {
        return false;
    }
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier || key.isAutoRepeat()) {
        return false;
    }
    open_();
    return true;
}

}  // namespace vorlund
