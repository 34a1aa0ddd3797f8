#pragma once

#include "setup/selection.h"
#include "ui/parts/screen.h"

namespace vorlund {

class Program;
class frm3;

/// The selection screen of a new game's opening round: each human player types the number of a territory.
class frmSelect final : public Screen {
    Q_OBJECT

public:
    frmSelect(Program& program, frm3& board);

protected:
    bool CloseRequested() override;

private:
    void Entr();

    Program& program_;
    Selection selection_;
    TextLabel* lbl1_;
    Field* txtNum_;
};

}  // namespace vorlund
