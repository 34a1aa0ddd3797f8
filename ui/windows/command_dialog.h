// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>

#include "actions/outcome.h"
#include "turn/commands.h"
#include "turn/report.h"
#include "ui/parts/screen.h"

namespace vorlund {

class DialogHost;

/// Base class of the dialogs that the board's commands open: non-modal children of the board. Escape closes
/// them. Every close request, except closing outright, restores the board's commands.
class CommandDialog : public Screen {
    Q_OBJECT

public:
    CommandDialog(DialogHost& host, const QString& name, const QString& title, QSize size);

protected:
    DialogHost& Host() const { return host_; }

    // Show the outcome of an action: a beep; a message box, after which the dialog stays as it is; or a
    // report, with which the dialog closes.
    void ShowOutcome(const Beep& beep);
    void ShowOutcome(const Refusal& refusal);
    void ShowOutcome(const Report& report);

    /// Enables a command, or disables it with the reason as its tooltip.
    static void EnableUnless(CommandLabel& command, const WhyNot& whyNot);

    /// Makes `fields`, the territory fields of one command, targets of clicks on the map. Each click moves
    /// the focus to the next of them.
    void AcceptTerritoryClicks(std::initializer_list<Field*> fields);

    bool HandleCloseRequest() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    DialogHost& host_;
};

}  // namespace vorlund
