// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

#include "actions/most.h"
#include "actions/outcome.h"
#include "state/territory_set.h"
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

    struct TerritoryField {
        Field* Where;
        std::function<TerritorySet()> Candidates;  ///< the territories that the command could take there
    };

    struct QuantityField {
        Field* Where;
        std::function<Most()> MostOf;  ///< the most that the command could take there
    };

    /// Makes `fields`, the territory fields of one command, targets of clicks on the map. Each click moves
    /// the focus to the next of them, and at last to `quantity`, if there is one.
    void AcceptTerritoryClicks(const std::vector<TerritoryField>& fields, Field* quantity = nullptr);

    /// Lets the wheel and the arrow keys change these fields, and describes their limits in them. The dialog
    /// must have all its fields.
    void AcceptSteps(const std::vector<QuantityField>& fields);

    bool HandleCloseRequest() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    DialogHost& host_;
};

}  // namespace vorlund
