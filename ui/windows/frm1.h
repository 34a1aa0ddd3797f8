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

/// The title screen. It plays the title music, types out the credits and leads to a new game or a saved one.
/// It has no title bar; it is moved by dragging any point of it that is no command.
class frm1 final : public Screen {
    Q_OBJECT

public:
    frm1(Sounds& sounds, TitleNavigation& navigation);

protected:
    bool CloseRequested() override;
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
    std::int16_t CreditTicks_ = 0;  // characters typed over all three lines
    bool dragging_ = false;
    QPoint grip_;  // where the window was taken hold of
};

}  // namespace vorlund
