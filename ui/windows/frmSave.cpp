#include "ui/windows/frmSave.h"

#include "savegame/game_name.h"
#include "ui/parts/message_box.h"
#include "ui/program.h"

namespace vorlund {
namespace {

constexpr int MaxGameNameLength = 12;

}  // namespace

frmSave::frmSave(Program& program)
    : CommandDialog(program, QStringLiteral("frmSave"), QStringLiteral("Vorlund - Save Game"),
                    QSize(300, 96)) {
    TextLabel* lbl1 = AddText(QStringLiteral("lbl1"), Face::Heading, QRect(20, 14, 260, 20),
                              "Enter a name for the saved game:");
    txtSave_ = AddField(lbl1, QStringLiteral("txtSave"), QPoint(20, 50), MaxGameNameLength, 160);
    CommandLabel* lblGo =
        AddCommand(QStringLiteral("lblGo"), QStringLiteral("Enter"), QRect(206, 50, 60, 19));
    lblGo->SetKey(QStringLiteral("Enter"));
    connect(lblGo, &CommandLabel::clicked, this, &frmSave::Entr);
    connect(txtSave_, &Field::Entered, this, &frmSave::Entr);
    txtSave_->setFocus();
}

void frmSave::Entr() {
    const std::string typed = txtSave_->Typed();
    if (const auto why = WhyNoGameName(typed)) {
        Exclaim(this, *why);
        return;
    }
    const std::string file = FileNameOf(typed);
    using Kind = SaveResult::Kind;
    SaveResult result = program().saves().Save(file, program().game(), false);
    if (result.Outcome == Kind::AlreadyThere) {
        if (!Ask(this, result.Message)) {
            Inform(this, NotSavedText);
            return;
        }
        result = program().saves().Save(file, program().game(), true);
    }
    const auto tell = result.Outcome == Kind::Saved ? Inform : Exclaim;
    tell(this, result.Message);
    if (result.Outcome != Kind::NotSaved) {
        close();
    }
}

}  // namespace vorlund
