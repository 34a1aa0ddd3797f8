// SPDX-License-Identifier: MIT
#pragma once

#include <QKeyEvent>

namespace vorlund {

/// True for Return and for Enter on the keypad.
inline bool IsEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// True for the four arrow keys.
inline bool IsArrow(int key) {
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

/// True when no modifier key but Shift is down.
inline bool IsPlain(const QKeyEvent& event) {
    // The toolkit reports AltGr as a modifier only on X11. In the native modifiers it is Mod5, on Wayland
    // too.
    constexpr quint32 altGr = 0x80;
    return (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier &&
           (event.nativeModifiers() & altGr) == 0;
}

}  // namespace vorlund
