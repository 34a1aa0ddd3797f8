#include "ui/parts/message_box.h"

#include <QApplication>
#include <QEvent>

#include "ui/parts/look.h"

namespace vorlund {
namespace {

/// Keeps everything from the other windows until the answer has reached whoever asked. Their being blocked by
/// the box ends when it closes, a moment earlier, and what was typed ahead could then close the very window
/// that waits.
class Attention : public QObject {
public:
    explicit Attention(const QWidget& box) : box_(box) { qApp->installEventFilter(this); }

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
        const auto* widget = qobject_cast<const QWidget*>(watched);
        if (widget == nullptr || widget == &box_ || box_.isAncestorOf(widget)) {
            return false;
        }
        event->ignore();
        return true;
    }

private:
    const QWidget& box_;
};

int Answer(QWidget* owner, QMessageBox::Icon icon, const QString& title, const std::string& text,
           QMessageBox::StandardButtons buttons) {
    QMessageBox box(icon, title, Displayed(text), buttons, owner);
    box.setTextFormat(Qt::PlainText);
    box.setWindowModality(Qt::ApplicationModal);
    const Attention attention(box);
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
