#pragma once

#include "ui/windows/command_dialog.h"

namespace vorlund {

/// The status screen: how the current player stands.
class frmStatus final : public CommandDialog {
    Q_OBJECT

public:
    explicit frmStatus(Program& program);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace vorlund
