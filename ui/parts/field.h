// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QString>
#include <functional>
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

    /// Replaces the text by `number` and selects it, so that typing replaces it.
    void ShowNumber(int number);

    /// Replaces the text by `number`, activates the window and focuses the next field, all of whose text is
    /// selected, so that typing replaces it.
    void EnterTerritory(int number);

    /// The largest quantity that can be entered, with the reason.
    struct Limit {
        int Most = 0;
        QString Text;
    };

    /// Marks the field as one for a quantity: the mouse wheel and the Up and Down keys change it by 1, with
    /// Shift by 10, between 0 and what `limit` returns. Any text but a whole number counts as 0.
    void AcceptSteps(std::function<Limit()> limit);

    /// Makes the limit's text the tooltip and the accessible description of a field for a quantity.
    void DescribeLimit();

    /// The text as UTF-8. It is not valid UTF-8 if the text holds a lone surrogate, which is left where the
    /// maximum length cuts a pasted text.
    std::string Typed() const;

signals:
    void Entered();

    /// In a field for a territory's number, Down (`by` is 1) or Up (-1) has been pressed.
    void TerritoryStepped(int by);

    /// In a field for a territory's number, the arrow key `arrow` has been pressed with Alt.
    void TerritoryWalked(int arrow);

    /// The field is one for a territory's number and has received the focus.
    void TerritoryFieldFocused();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void Step(int by);
    bool HandleTerritoryKey(const QKeyEvent& event);

    bool acceptsTerritoryClicks_ = false;
    Field* next_ = nullptr;
    std::function<Limit()> limit_;
    int wheelAngle_ = 0;  ///< turned since the last step, in eighths of a degree
};

}  // namespace vorlund
