// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QTimer>
#include <array>
#include <cstdint>

#include "ui/parts/screen.h"

namespace vorlund {

class Sounds;
class TitleNavigation;

/// The title screen: plays the title music, types out the credits and offers a new game, a saved game and the
/// end. It has no title bar and is moved by dragging it anywhere outside the commands.
class frm1 final : public Screen {
    Q_OBJECT

public:
    frm1(Sounds& sounds, TitleNavigation& navigation);

protected:
    bool HandleCloseRequest() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void AddCommands();
    void StartTimers();
    void TypeCredit();

    Sounds& sounds_;
    TitleNavigation& navigation_;
    Picture earth_;
    QTimer tmr1_;
    QTimer tmr2_;
    QTimer tmr3_;
    std::array<TextLabel*, 3> credits_{};
    std::int16_t CreditTicks_ = 0;  ///< characters typed in all three lines together
    bool dragging_ = false;
    QPoint dragOffset_;  ///< of the pointer from the window's origin
};

}  // namespace vorlund
