// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

#include "ui/parts/placed.h"

namespace vorlund {

/// Base class of commands and toggles. Space presses them; Enter is passed on to the window, even where the
/// platform theme lists Enter among its press keys, and so are the arrow keys unless the button is checkable.
/// The pointer is a hand over one that is enabled.
class Button : public Placed<QAbstractButton> {
    Q_OBJECT

public:
    explicit Button(QWidget* parent);

    QSize sizeHint() const override { return size(); }

    /// Posts the event of an accelerator, which clicks the button when the event loop delivers it. It is
    /// dropped while a message box is open.
    void PressByEvent();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace vorlund
