// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

#include "ui/parts/placed.h"

namespace vorlund {

/// What commands and toggles have in common: on every desktop Space presses them and Enter is left to the
/// window, although some desktop themes count Enter among the keys that press a button.
class Button : public Placed<QAbstractButton> {
    Q_OBJECT

public:
    using Placed::Placed;

    QSize sizeHint() const override { return size(); }

    /// Clicks the button by an event, as its accelerator would. The event does not arrive while a message box
    /// waits for an answer.
    void PressByEvent();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace vorlund
