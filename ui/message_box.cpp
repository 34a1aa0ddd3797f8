#include "ui/message_box.h"

#include "ui/look.h"

namespace vorlund {
namespace {

int Answer(QWidget* owner, QMessageBox::Icon icon, const QString& title, const std::string& text,
           QMessageBox::StandardButtons buttons) {
    QMessageBox box(icon, title, Displayed(text), buttons, owner);
    box.setTextFormat(Qt::PlainText);
    // Nothing else takes a click, a key or a close request while a box is up.
    box.setWindowModality(Qt::ApplicationModal);
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
