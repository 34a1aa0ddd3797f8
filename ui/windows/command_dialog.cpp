// SPDX-License-Identifier: MIT
#include "ui/windows/command_dialog.h"

#include <QApplication>
#include <QKeyEvent>

#include "ui/parts/message_box.h"
#include "ui/windows/dialog_host.h"

namespace vorlund {

CommandDialog::CommandDialog(DialogHost& host, const QString& name, const QString& title, QSize size)
    : Screen(&host.Board(), name, title, size, {}, Qt::Dialog), host_(host) {}

void CommandDialog::ShowOutcome(const Beep&) {
    QApplication::beep();
}

void CommandDialog::ShowOutcome(const Refusal& refusal) {
    Exclaim(this, refusal.Message);
}

void CommandDialog::ShowOutcome(const Report& report) {
    host_.Board().RefreshMap();
    host_.ShowActionReport(report);
    close();
}

void CommandDialog::EnableUnless(CommandLabel& command, const WhyNot& whyNot) {
    command.SetAvailable(!whyNot, Displayed(whyNot.value_or("")));
}

void CommandDialog::AcceptTerritoryClicks(std::initializer_list<Field*> fields) {
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        (*field)->AcceptTerritoryClicks(field + 1 == fields.end() ? nullptr : *(field + 1));
        host_.Board().AddTerritoryField(**field);
    }
}

bool CommandDialog::HandleCloseRequest() {
    host_.RestoreCommands();
    return true;
}

void CommandDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    Screen::keyPressEvent(event);
}

}  // namespace vorlund
