#include "ui/windows/frmSelect.h"

#include <QApplication>

#include "ui/parts/message_box.h"
#include "ui/program.h"
#include "ui/windows/frm3.h"

namespace vorlund {

frmSelect::frmSelect(Program& program, frm3& board)
    : Screen(&board, QStringLiteral("frmSelect"), QStringLiteral("Vorlund - Territory Select"),
             QSize(360, 140), {}, Qt::Dialog),
      program_(program),
      selection_(program.game(), program.random()) {
    lbl1_ = AddText(QStringLiteral("lbl1"), Face::Heading, QRect(16, 12, 328, 58));
    lbl1_->setAlignment(Qt::AlignCenter);
    TextLabel* lbl2 =
        AddText(QStringLiteral("lbl2"), Face::Caption, QRect(56, 92, 136, 19), "Territory number (1-42):");
    txtNum_ = AddField(lbl2, QStringLiteral("txtNum"), QPoint(196, 92), 2);
    CommandLabel* lblGo =
        AddCommand(QStringLiteral("lblGo"), QStringLiteral("Enter"), QRect(244, 92, 52, 19));
    lblGo->SetKey(QStringLiteral("Enter"));
    connect(lblGo, &CommandLabel::clicked, this, &frmSelect::Entr);
    connect(txtNum_, &Field::Entered, this, &frmSelect::Entr);
    txtNum_->TakeTerritories();
    board.TypeInto(*txtNum_);
    txtNum_->setFocus();
    lbl1_->Show(selection_.Open());
    PlaceOver(*this, board, frm3::DialogBottom);
}

void frmSelect::Entr() {
    const Selection::Step step = selection_.Entr(txtNum_->Typed());
    lbl1_->Show(step.Message);
    txtNum_->clear();
    if (step.What == Selection::Step::Kind::Rejected) {
        QApplication::beep();
        return;
    }
    program_.screens().RefreshMap();
    if (step.What == Selection::Step::Kind::Ended) {
        hide();
        program_.turn().OpenFirstTurn();
        CloseOutright();
    }
}

bool frmSelect::CloseRequested() {
    if (Ask(this,
            "Closing this window will terminate your new game.\rPress 'yes' to exit or 'no' to return.")) {
        program_.End();
        return true;
    }
    return false;
}

}  // namespace vorlund
