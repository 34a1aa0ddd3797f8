#pragma once

#include "ui/windows/command_dialog.h"

namespace vorlund {

/// The save screen.
class frmSave final : public CommandDialog {
    Q_OBJECT

public:
    explicit frmSave(Program& program);

private:
    void Entr();

    Field* txtSave_;
};

}  // namespace vorlund
