// SPDX-License-Identifier: MIT
#include "ui/parts/input_filter.h"

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyleHints>

#include "ui/parts/keys.h"
#include "ui/parts/screen.h"

namespace vorlund {
namespace {

bool IsNavigation(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return true;
        default:
            return false;
    }
}

bool IsEditing(const QKeyEvent& event) {
    constexpr auto commands = Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier;
    return !IsEnter(event) && event.key() != Qt::Key_Escape && (event.modifiers() & commands) == 0;
}

QWidget* ControlAt(QWindow& window, QPoint place) {
    QWidget* widget = QWidget::find(window.winId());
    QWidget* child = widget != nullptr ? widget->childAt(place) : nullptr;
    return child != nullptr ? child : widget;
}

int TimesPresented(const QWidget* control) {
    const auto* screen = control != nullptr ? qobject_cast<const Screen*>(control->window()) : nullptr;
    return screen != nullptr ? screen->TimesPresented() : 0;
}

}  // namespace

InputFilter::InputFilter() {
    qApp->installEventFilter(this);
}

bool InputFilter::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Hide:
        case QEvent::EnabledChange:
            if (watched == press_.Target) {
                press_.Target = nullptr;
            }
            return false;
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            if (watched->isWindowType() &&
                ShouldDrop(*static_cast<QWindow*>(watched), *static_cast<QKeyEvent*>(event))) {
                event->accept();  // an unaccepted ShortcutOverride triggers the accelerator
                return true;
            }
            return false;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseButtonRelease:
            return watched->isWindowType() &&
                   ShouldDrop(*static_cast<QWindow*>(watched), *static_cast<QMouseEvent*>(event));
        default:
            return false;
    }
}

bool InputFilter::ShouldDrop(QWindow& window, const QKeyEvent& event) {
    // Only synthetic keys have no scan code. A program may release and press one within a millisecond, so
    // equal time stamps do not make that a repeat.
    const quint32 scanCode = event.nativeScanCode();
    const bool hardware = scanCode != 0;
    Key& key = keys_[hardware ? scanCode : quint64(event.key()) << 32];
    if (event.type() == QEvent::KeyRelease) {
        key.Released = true;
        key.ReleaseTime = event.timestamp();
        return false;
    }
    QWidget* focus = QApplication::focusWidget();
    // While an accessibility client listens, the toolkit delivers copies of key events with a time stamp of
    // 0.
    const bool sameTime = event.timestamp() != 0 && event.timestamp() == key.ReleaseTime;
    const bool repeats = event.isAutoRepeat() || (hardware && key.Released && sameTime);
    if (!repeats) {
        key.Window = &window;
        key.Focus = focus;
        return false;
    }
    const bool inField = focus != nullptr && focus == key.Focus && qobject_cast<QLineEdit*>(focus) != nullptr;
    return key.Window != &window || !(IsNavigation(event) || (inField && IsEditing(event)));
}

bool InputFilter::ShouldDrop(QWindow& window, const QMouseEvent& event) {
    if (event.type() != QEvent::MouseButtonPress) {
        // The release of a dropped press, and the double-click event that the toolkit sends after the press
        return press_.Dropped && event.button() == press_.Button;
    }
    QWidget* target = ControlAt(window, event.position().toPoint());
    const Press now{target, TimesPresented(target), event.button(), event.globalPosition().toPoint(),
                    static_cast<ulong>(event.timestamp())};
    const Press before = std::exchange(press_, now);
    const QStyleHints& hints = *QGuiApplication::styleHints();
    const bool second = now.Button == before.Button &&
                        now.Time - before.Time < static_cast<ulong>(hints.mouseDoubleClickInterval()) &&
                        (now.Place - before.Place).manhattanLength() <= hints.mouseDoubleClickDistance();
    const bool sameTarget = now.Target == before.Target && now.Presented == before.Presented;
    press_.Dropped = second && (before.Dropped || !sameTarget);
    return press_.Dropped;
}

}  // namespace vorlund
