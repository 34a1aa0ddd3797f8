// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

#include "turn/report.h"
#include "ui/parts/screen.h"

namespace vorlund {

class GameNavigation;

/// The report screen, which shows the result of an action or of a turn. There is one, hidden and shown again.
/// A close request asks GameNavigation::ReportClosed whether the window may close. A long body scrolls.
class frmReport final : public Screen {
    Q_OBJECT

public:
    explicit frmReport(GameNavigation& navigation);

    /// Presents `report` with `picture`, the player's marker, if not null, and keeps the window in front of
    /// `owner`, if not null.
    void ShowReport(const Report& report, const Picture* picture, QWidget* owner);

protected:
    bool HandleCloseRequest() override;
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
