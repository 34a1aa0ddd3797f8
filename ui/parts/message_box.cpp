// SPDX-License-Identifier: MIT
#include "ui/parts/message_box.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QWindow>

#include "ui/parts/look.h"
#include "ui/parts/screen.h"
#include "ui/parts/zoom.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

/// The screen to which `object`, a widget or a native window, belongs.
const Screen* ScreenOf(QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const auto* window = qobject_cast<QWindow*>(object);
    if (window != nullptr && window->handle() != nullptr) {
        widget = QWidget::find(window->winId());
    }
    return widget != nullptr ? qobject_cast<const Screen*>(widget->window()) : nullptr;
}

/// Drops key, mouse, accelerator, assistive-technology and close events of all screens as long as it lives;
/// only Screen::CloseOutright still closes one. The modality of the message box does not suffice: it ends
/// before exec() returns, and it does not keep a window in its own close event from being closed again.
class InputBlocker : public QObject {
public:
    InputBlocker() { qApp->installEventFilter(this); }

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

int RunBox(QWidget* owner, QMessageBox::Icon icon, const QString& title, const std::string& text,
           QMessageBox::StandardButtons buttons) {
    QMessageBox box(icon, title, Displayed(text), buttons, owner);
    box.setFont(Zoomed(box.font()));
    box.setTextFormat(Qt::PlainText);
    box.setWindowModality(Qt::ApplicationModal);
    if (auto* picture =
            box.findChild<QLabel*>(u"qt_msgboxex_icon_label"_s)) {  // the toolkit gives it no name
        picture->setAccessibleName(icon == QMessageBox::Warning    ? u"Warning"_s
                                   : icon == QMessageBox::Question ? u"Question"_s
                                                                   : u"Information"_s);
    }
    const auto harmless = buttons.testFlag(QMessageBox::No) ? QMessageBox::No : QMessageBox::Ok;
    box.setDefaultButton(harmless);
    box.setEscapeButton(harmless);
    const InputBlocker blocker;
    return box.exec();
}

constexpr auto YesNo = QMessageBox::Yes | QMessageBox::No;

}  // namespace

void Exclaim(QWidget* owner, const std::string& text) {
    RunBox(owner, QMessageBox::Warning, u"Vorlund"_s, text, QMessageBox::Ok);
}

void Inform(QWidget* owner, const std::string& text) {
    RunBox(owner, QMessageBox::Information, u"Vorlund"_s, text, QMessageBox::Ok);
}

bool Ask(QWidget* owner, const std::string& text, const QString& title) {
    return RunBox(owner, QMessageBox::NoIcon, title.isEmpty() ? u"Vorlund"_s : title, text, YesNo) ==
           QMessageBox::Yes;
}

bool AskWithIcon(QWidget* owner, const std::string& text) {
    return RunBox(owner, QMessageBox::Question, u"Vorlund"_s, text, YesNo) == QMessageBox::Yes;
}

}  // namespace vorlund
