// SPDX-License-Identifier: MIT
#pragma once

#include "ui/parts/screen.h"

class QTextBrowser;

namespace vorlund {

/// The rules of the game to read beside it: the text of docs/rules.md. Escape closes it.
class RulesPage final : public Screen {
    Q_OBJECT

public:
    RulesPage();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void FollowZoom();

    QTextBrowser* text_;
};

}  // namespace vorlund
