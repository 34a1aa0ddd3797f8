// SPDX-License-Identifier: MIT
#pragma once

#include <QKeyEvent>

namespace vorlund {

/// Enter, on the keypad as well.
inline bool IsEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// True when no modifier key but Shift is down.
inline bool IsPlain(const QKeyEvent& event) {
    // AltGr is a modifier of the toolkit's only under X11; the keyboard map calls it Mod5 under Wayland too.
    constexpr quint32 altGr = 0x80;
    return (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier &&
           (event.nativeModifiers() & altGr) == 0;
}

}  // namespace vorlund
