// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>

#include "actions/outcome.h"
#include "turn/commands.h"
#include "turn/report.h"
#include "ui/parts/screen.h"

namespace vorlund {

class DialogHost;

/// A dialog that a command of the board opens, in front of the board and without blocking it. Escape closes
/// it, and however it closes, it gives the board its commands back.
class CommandDialog : public Screen {
    Q_OBJECT

public:
    CommandDialog(DialogHost& host, const QString& name, const QString& title, QSize size);

protected:
    DialogHost& host() const { return host_; }

    // What the outcome of an action looks like: a beep, a message box over the dialog that stays as it is, or
    // the report of what was done, behind which the dialog closes.
    void Settle(const Beep& beep);
    void Settle(const Refusal& refusal);
    void Settle(const Report& report);

    /// Enables a command, or disables it for the reason that its tooltip then gives.
    static void Offer(CommandLabel& command, const WhyNot& whyNot);

    /// Lets a click on the map type into these fields for territories, which belong to one command.
    void TakeTerritories(std::initializer_list<Field*> fields);

    bool CloseRequested() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    DialogHost& host_;
};

}  // namespace vorlund
