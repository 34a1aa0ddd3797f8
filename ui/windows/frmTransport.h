// SPDX-License-Identifier: MIT
#pragma once

#include "actions/transport.h"
#include "ui/windows/command_dialog.h"

namespace vorlund {

/// The transport dialog. It stays open after a move, for the turn's second one.
class frmTransport final : public CommandDialog {
    Q_OBJECT

public:
    frmTransport(DialogHost& host, GameState& game);

private:
    OrderEntries Entries() const;
    void Move();

    using CommandDialog::ShowOutcome;
    void ShowOutcome(const Moved& moved);

    GameState& game_;
    TextLabel* lblA_;
    Field* txtC1_;
    Field* txtC2_;
    Field* txtTroops_;
    Field* txtTanks_;
    CommandLabel* lblGo_;
};

}  // namespace vorlund
