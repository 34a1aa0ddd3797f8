// SPDX-License-Identifier: MIT
#include "ui/parts/message_box.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>

#include "ui/parts/look.h"
#include "ui/parts/screen.h"
#include "ui/parts/zoom.h"

namespace vorlund {
namespace {

/// The screen that `object` is, shows or belongs to.
const Screen* ScreenOf(QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const auto* window = qobject_cast<QWindow*>(object);
    if (window != nullptr && window->handle() != nullptr) {
        widget = QWidget::find(window->winId());
    }
    return widget != nullptr ? qobject_cast<const Screen*>(widget->window()) : nullptr;
}

/// While a message box waits, and until its answer has reached whoever asked, no other window of the game
/// takes keys, clicks, presses by accelerators or assistive technology, or requests to close; CloseOutright
/// alone closes one. The box's own modality is not enough: it ends when the box closes, a moment before the
/// answer arrives, and it does not hold for a window that is itself in the middle of closing.
class Gate : public QObject {
public:
    Gate() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
            case QEvent::Close:
            case QEvent::KeyPress:
            case QEvent::Shortcut:
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
                break;
            default:
                return false;
        }
        const Screen* screen = ScreenOf(watched);
        if (screen == nullptr || (event->type() == QEvent::Close && screen->ClosesOutright())) {
            return false;
        }
        event->ignore();
        return true;
    }
};

int Answer(QWidget* owner, QMessageBox::Icon icon, const QString& title, const std::string& text,
           QMessageBox::StandardButtons buttons) {
    QMessageBox box(icon, title, Displayed(text), buttons, owner);
    box.setFont(Zoomed(box.font()));
    box.setTextFormat(Qt::PlainText);
    box.setWindowModality(Qt::ApplicationModal);
    const auto safe = buttons.testFlag(QMessageBox::No) ? QMessageBox::No : QMessageBox::Ok;
    box.setDefaultButton(safe);
    box.setEscapeButton(safe);
    const Gate gate;
    return box.exec();
}

constexpr auto YesNo = QMessageBox::Yes | QMessageBox::No;

}  // namespace

void Exclaim(QWidget* owner, const std::string& text) {
    Answer(owner, QMessageBox::Warning, QStringLiteral("Vorlund"), text, QMessageBox::Ok);
}

void Inform(QWidget* owner, const std::string& text) {
    Answer(owner, QMessageBox::Information, QStringLiteral("Vorlund"), text, QMessageBox::Ok);
}

bool Ask(QWidget* owner, const std::string& text, const QString& title) {
    return Answer(owner, QMessageBox::NoIcon, title, text, YesNo) == QMessageBox::Yes;
}

bool AskWithIcon(QWidget* owner, const std::string& text) {
    return Answer(owner, QMessageBox::Question, QStringLiteral("Vorlund"), text, YesNo) == QMessageBox::Yes;
}

}  // namespace vorlund
