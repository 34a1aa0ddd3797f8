// SPDX-License-Identifier: MIT
#include "ui/windows/frmSelect.h"

#include <QApplication>

#include "ui/parts/message_box.h"
#include "ui/windows/board_window.h"
#include "ui/windows/game_navigation.h"

namespace vorlund {

using namespace Qt::StringLiterals;

frmSelect::frmSelect(BoardWindow& board, GameState& game, Random& random, GameNavigation& navigation)
    : Screen(&board, u"frmSelect"_s, u"Vorlund - Territory Select"_s, QSize(360, 140), {}, Qt::Dialog),
      board_(board),
      navigation_(navigation),
      selection_(game, random) {
    lbl1_ = AddText(u"lbl1"_s, Face::Heading, QRect(16, 12, 328, 58));
    lbl1_->setAlignment(Qt::AlignCenter);
    lbl1_->SetLive();
    TextLabel* lbl2 = AddText(u"lbl2"_s, Face::Caption, QRect(56, 92, 136, 19), "Territory number (1-42):");
    txtNum_ = AddField(lbl2, u"txtNum"_s, QPoint(196, 92), 2);
    CommandLabel* lblGo = AddCommand(u"lblGo"_s, u"Enter"_s, QRect(244, 92, 52, 19));
    lblGo->SetKey(u"Enter"_s);
    connect(lblGo, &CommandLabel::clicked, this, &frmSelect::Entr);
    connect(txtNum_, &Field::Entered, this, &frmSelect::Entr);
    txtNum_->AcceptTerritoryClicks();
    board.AddTerritoryField(*txtNum_, [this] { return selection_.Free(); });
    txtNum_->setFocus();
    lbl1_->Show(selection_.Open());
    board.RefreshMap();
}

void frmSelect::Entr() {
    const Selection::Step step = selection_.Entr(txtNum_->Typed());
    lbl1_->Show(step.Message);
    txtNum_->clear();
    if (step.What == Selection::Step::Kind::Rejected) {
        QApplication::beep();
        return;
    }
    board_.RefreshMap();
    if (step.What == Selection::Step::Kind::Ended) {
        navigation_.BeginFirstTurn();
    }
}

bool frmSelect::HandleCloseRequest() {
    if (Ask(this,
            "Closing this window will terminate your new game.\rPress 'yes' to exit or 'no' to return.")) {
        navigation_.End();
        return true;
    }
    return false;
}

}  // namespace vorlund
