// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace vorlund {

/// The description of the territory that the keyboard has chosen, beside its marker on the board. It looks
/// like a tooltip, but the pointer does not make it disappear.
class MapTip final : public QLabel {
    Q_OBJECT

public:
    explicit MapTip(QWidget* board);

    /// Shows `text` below the marker at `marker`, in pixels of the layout, or above it where there is no
    /// room.
    void ShowBeside(QPoint marker, const QString& text);
};

}  // namespace vorlund
