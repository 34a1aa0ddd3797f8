// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QString>
#include <string>

#include "ui/parts/placed.h"

namespace vorlund {

/// A single-line text field. Enter, also on the keypad, emits Entered instead of reaching the window.
class Field : public Placed<QLineEdit> {
    Q_OBJECT

public:
    Field(QWidget* parent, const QString& objectName, const QRect& frame, int maxLength);

    /// Marks the field as one for a territory's number, which a click on the map fills in as well. `next` is
    /// the field that gets the focus after that; null keeps it here.
    void AcceptTerritoryClicks(Field* next = nullptr);

    /// Replaces the text by `number`, activates the window and focuses the next territory's field.
    void EnterTerritory(int number);

    /// The text as UTF-8. It is not valid UTF-8 if the text holds a lone surrogate, which is left where the
    /// maximum length cuts a pasted text.
    std::string Typed() const;

signals:
    void Entered();

    /// The field is one for a territory's number and has received the focus.
    void TerritoryFieldFocused();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    bool acceptsTerritoryClicks_ = false;
    Field* next_ = nullptr;
};

}  // namespace vorlund
