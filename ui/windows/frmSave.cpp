// SPDX-License-Identifier: MIT
#include "ui/windows/frmSave.h"

#include "savegame/game_name.h"
#include "ui/parts/message_box.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

constexpr int MaxGameNameLength = 12;

}  // namespace

frmSave::frmSave(DialogHost& host, const GameState& game, const SavedGamesFolder& saves)
    : CommandDialog(host, u"frmSave"_s, u"Vorlund - Save Game"_s, QSize(300, 96)),
      game_(game),
      saves_(saves) {
    TextLabel* lbl1 =
        AddText(u"lbl1"_s, Face::Heading, QRect(20, 14, 260, 20), "Enter a name for the saved game:");
    txtSave_ = AddField(lbl1, u"txtSave"_s, QPoint(20, 50), MaxGameNameLength, 160);
    CommandLabel* lblGo = AddCommand(u"lblGo"_s, u"Enter"_s, QRect(206, 50, 60, 19));
    lblGo->SetKey(u"Enter"_s);
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
    SaveResult result = saves_.Save(file, game_, false);
    if (result.Outcome == Kind::AlreadyThere) {
        if (!Ask(this, result.Message)) {
            Inform(this, NotSavedText);
            return;
        }
        result = saves_.Save(file, game_, true);
    }
    const auto tell = result.Outcome == Kind::Saved ? Inform : Exclaim;
    tell(this, result.Message);
    if (result.Outcome != Kind::NotSaved) {
        close();
    }
}

}  // namespace vorlund
