// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

#include "turn/report.h"
#include "ui/parts/screen.h"

namespace vorlund {

class GameNavigation;

/// The report screen, the one on which every result and every turn is shown. What closing it means is the
/// turn's affair. A body longer than its place scrolls.
class frmReport final : public Screen {
    Q_OBJECT

public:
    explicit frmReport(GameNavigation& navigation);

    /// Shows `report` in front of `owner`, or of no window in particular, with the player's `picture` if
    /// there is one.
    void ShowIt(const Report& report, const Picture* picture, QWidget* owner);

protected:
    bool CloseRequested() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void LayOut();
    bool Scroll(int key);

    GameNavigation& navigation_;
    PictureLabel* imgC_;
    TextLabel* lbl1_;
    TextLabel* lbl2_;
    Placed<QScrollArea>* scroll_;
};

}  // namespace vorlund
