#include "ui/windows/command_dialog.h"

#include <QApplication>
#include <QKeyEvent>

#include "ui/game_screens.h"
#include "ui/parts/message_box.h"
#include "ui/program.h"
#include "ui/windows/frm3.h"
#include "ui/windows/frmReport.h"

namespace vorlund {

CommandDialog::CommandDialog(Program& program, const QString& name, const QString& title, QSize size)
    : Screen(program.screens().board(), name, title, size, {}, Qt::Dialog), program_(program) {
    setAttribute(Qt::WA_DeleteOnClose);
    PlaceOver(*this, *program.screens().board(), frm3::DialogBottom);
}

void CommandDialog::Settle(const Beep&) {
    QApplication::beep();
}

void CommandDialog::Settle(const Refusal& refusal) {
    Exclaim(this, refusal.Message);
}

void CommandDialog::Settle(const Report& report) {
    program_.screens().RefreshMap();
    program_.screens().ShowActionReport(report);
    close();
}

void CommandDialog::TakeTerritories(std::initializer_list<Field*> fields) {
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        (*field)->TakeTerritories(field + 1 == fields.end() ? nullptr : *(field + 1));
        program_.screens().board()->TypeInto(**field);
    }
}

bool CommandDialog::CloseRequested() {
    // The second half of a double click would give the same order once more.
    setEnabled(false);
    GameScreens& screens = program_.screens();
    screens.RestoreCommands();
    if (!screens.report().isVisible()) {
        screens.board()->activateWindow();
    }
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
