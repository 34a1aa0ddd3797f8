// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QString>
#include <string>

#include "ui/parts/placed.h"

namespace vorlund {

/// A text field of a dialog. It takes any characters up to its length; Enter, on the keypad as well, is a
/// request of its own.
class Field : public Placed<QLineEdit> {
    Q_OBJECT

public:
    Field(QWidget* parent, const QString& objectName, const QRect& frame, int maxLength);

    /// Makes this a field for a territory's number, which a click on the map can type as well. `next` is the
    /// field for the other territory of the same command, if there is one.
    void TakeTerritories(Field* next = nullptr);

    /// Types the number of a territory that was clicked, and moves the keyboard on to the next territory.
    void TypeTerritory(int number);

    /// What has been typed, as UTF-8. It is none when it holds half a character, as what is left of a long
    /// text that was pasted may.
    std::string Typed() const;

signals:
    void Entered();

    /// This field for a territory's number has got the keyboard.
    void TerritoryWanted();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    bool takesTerritories_ = false;
    Field* next_ = nullptr;
};

}  // namespace vorlund
