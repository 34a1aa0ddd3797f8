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

    /// True when nothing is saved as `file` yet, or the player agrees to overwrite it.
    bool MayWrite(const std::string& file);

    Field* txtSave_;
};

}  // namespace vorlund
