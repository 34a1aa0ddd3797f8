// SPDX-License-Identifier: MIT
#include "ui/windows/frm2.h"

#include <QApplication>
#include <string>
#include <vector>

#include "savegame/format.h"
#include "setup/new_game.h"
#include "ui/parts/keys.h"
#include "ui/parts/message_box.h"
#include "ui/windows/title_navigation.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

constexpr int FirstRowY = 54;
constexpr int RowHeight = 30;

}  // namespace

frm2::frm2(GameState& game, TitleNavigation& navigation)
    : Screen(nullptr, u"frm2"_s, u"Vorlund - New Game"_s, QSize(400, 250)),
      game_(game),
      navigation_(navigation) {
    SetRole(QAccessible::Dialog);  // for screen readers to read out its prompt
    lbl1_ = AddText(u"lbl1"_s, Face::Heading, QRect(20, 14, 360, 22));
    lbl1_->SetLive();
    lbl1_->Show("Select the number of players for the game:");
    AddChoices();
    for (int row = 0; row < MaxPlayers; ++row) {
        AddRow(row);
    }
    CommandLabel* lblCont = AddCommand(u"lblCont"_s, u"Continue >"_s, QRect(278, 216, 98, 19));
    lblCont->SetKey(u"Enter"_s);
    connect(lblCont, &CommandLabel::clicked, this, &frm2::Cont);
    HoverOneAtATime();
}

void frm2::AddChoices() {
    for (int i = 0; i < 4; ++i) {
        const int players = i + MinPlayers;
        CommandLabel* choice = AddCommand(u"opt%1"_s.arg(players), u"%1 Players"_s.arg(players),
                                          QRect(140, FirstRowY + 6 + 36 * i, 112, 19));
        choice->setCheckable(true);
        choice->setAutoExclusive(true);
        choice->setFocusPolicy(Qt::StrongFocus);
        choices_[static_cast<std::size_t>(i)] = choice;
    }
    choices_[0]->setChecked(true);
    choices_[0]->setFocus();
}

void frm2::AddRow(int number) {
    const int y = FirstRowY + RowHeight * number;
    Row row{};
    row.lblP = AddText(u"lblP(%1)"_s.arg(number), Face::Caption, QRect(24, y, 104, 19),
                       "Player " + std::to_string(number + 1) + "'s name:");
    row.txtN = AddField(row.lblP, u"txtN(%1)"_s.arg(number), QPoint(132, y), MaxNameLength, 150);
    row.cmp = new ComputerToggle(this, u"cmp(%1)"_s.arg(number), QRect(290, y - 1, 21, 21));
    row.cmp->setAccessibleName(u"Player %1 is played by the computer"_s.arg(number + 1));
    row.cmp->setToolTip(row.cmp->accessibleName());
    connect(row.txtN, &Field::Entered, this, &frm2::Cont);
    connect(row.cmp, &ComputerToggle::toggled, this, [row](bool computer) {
        row.txtN->setText(computer ? u"Computer"_s : QString());
        row.txtN->setEnabled(!computer);
    });
    row.lblP->hide();
    row.txtN->hide();
    row.cmp->hide();
    rows_[static_cast<std::size_t>(number)] = row;
}

void frm2::Cont() {
    if (choosing_) {
        ShowNameRows();
    } else {
        CheckNames();
    }
}

void frm2::ShowNameRows() {
    int players = MinPlayers;
    for (CommandLabel* choice : choices_) {
        if (choice->isChecked()) {
            break;
        }
        ++players;
    }
    SetNumPlayers(game_, players);
    for (CommandLabel* choice : choices_) {
        choice->hide();
    }
    for (int i = 0; i < players; ++i) {
        const Row& row = rows_[static_cast<std::size_t>(i)];
        row.lblP->show();
        row.txtN->show();
        row.cmp->show();
    }
    lbl1_->Show("Enter the players' names:");
    rows_[0].txtN->setFocus();
    choosing_ = false;
}

void frm2::CheckNames() {
    std::vector<std::string> names;
    names.reserve(rows_.size());
    for (int i = 0; i < game_.NumPlayers; ++i) {
        names.push_back(rows_[static_cast<std::size_t>(i)].txtN->Typed());
    }
    if (const auto refusal = EnterNames(game_, names)) {
        lbl1_->Show(refusal->Prompt);
        for (int beep = 0; beep < refusal->Beeps; ++beep) {
            QApplication::beep();
        }
        return;
    }
    navigation_.OpenBoard();
}

bool frm2::HandleCloseRequest() {
    if (Ask(this,
            "Closing this window will terminate your new game.\rPress 'Yes' to exit or 'No' to return.")) {
        navigation_.End();
        return true;
    }
    return false;
}

void frm2::keyPressEvent(QKeyEvent* event) {
    // Reaches the window from radio buttons and computer toggles, which ignore Enter
    if (IsEnter(*event)) {
        Cont();
    } else {
        Screen::keyPressEvent(event);
    }
}

}  // namespace vorlund
