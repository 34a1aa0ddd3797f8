#pragma once

#include <QLineEdit>
#include <QString>
#include <string>

namespace vorlund {

/// A text field of a dialog. It takes any characters up to its length; Enter, on the keypad as well, is a
/// request of its own, and a held Enter key asks once.
class Field : public QLineEdit {
    Q_OBJECT

public:
    Field(QWidget* parent, const QString& objectName, const QRect& frame, int maxLength);

    /// What has been typed, as UTF-8.
    std::string Typed() const { return text().toStdString(); }

signals:
    void Entered();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace vorlund
