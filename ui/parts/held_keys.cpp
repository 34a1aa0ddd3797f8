#include "ui/parts/held_keys.h"

#include <QKeyEvent>

namespace vorlund {

bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool closes =
            key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter || key->key() == Qt::Key_Escape;
        if (closes && key->isAutoRepeat()) {
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace vorlund
