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

void CommandDialog::AcceptTerritoryClicks(const std::vector<TerritoryField>& fields, Field* quantity) {
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        const auto next = field + 1;
        field->Where->AcceptTerritoryClicks(next == fields.end() ? quantity : next->Where);
        host_.Board().AddTerritoryField(*field->Where, field->Candidates);
    }
}

void CommandDialog::AcceptSteps(const std::vector<QuantityField>& fields) {
    for (const QuantityField& field : fields) {
        field.Where->AcceptSteps([most = field.MostOf] {
            const Most now = most();
            return Field::Limit{now.Amount, Displayed(now.Words)};
        });
        for (const Field* other : findChildren<Field*>()) {
            connect(other, &Field::textChanged, field.Where, &Field::DescribeLimit);
        }
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
