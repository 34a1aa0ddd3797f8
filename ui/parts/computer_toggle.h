// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "ui/parts/button.h"

namespace vorlund {

/// The checkable icon button beside a player's name: when checked, the computer plays that player.
class ComputerToggle : public Button {
    Q_OBJECT

public:
    ComputerToggle(QWidget* parent, const QString& objectName, const QRect& frame);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
};

}  // namespace vorlund
