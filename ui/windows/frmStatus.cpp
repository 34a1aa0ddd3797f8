// SPDX-License-Identifier: MIT
#include "ui/windows/frmStatus.h"

#include "actions/status.h"
#include "ui/parts/keys.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize Size(320, 340);
constexpr int FirstLine = 14;
constexpr int LineHeight = 22;

}  // namespace

frmStatus::frmStatus(DialogHost& host, const GameState& game, const Picture& marker)
    : CommandDialog(host, u"frmStatus"_s, {}, Size) {
    const StatusLines lines = DescribeStatus(game);
    SetTitle(lines.Title);
    struct Row {
        const char* Caption = nullptr;
        QString Control;
        const std::string& Value;
        int Lines = 1;
    };
    const std::array<Row, 12> rows{{{"Name:", u"lblName"_s, lines.Name},
                                    {"Money:", u"lblMoney"_s, lines.Money},
                                    {"Oil Barrels:", u"lblOil"_s, lines.Oil},
                                    {"Total Troops:", u"lblTroops"_s, lines.Troops},
                                    {"Total Tanks:", u"lblTanks"_s, lines.Tanks},
                                    {"Total Factories:", u"lblFact"_s, lines.Factories},
                                    {"Turns in Debt:", u"lblDebt"_s, lines.Debt},
                                    {"Economy Upgrade:", u"lblEco"_s, lines.Economy},
                                    {"Warfare Upgrade:", u"lblWar"_s, lines.Warfare},
                                    {"Nuclear Upgrade:", u"lblNuc"_s, lines.Nuclear, 2},
                                    {"Attacks/Moves left:", u"lblAM"_s, lines.AttacksMoves},
                                    {"Current Upkeep/Turn:", u"lblUpkeep"_s, lines.Upkeep}}};
    int y = FirstLine;
    for (const Row& row : rows) {
        const int height = 8 + 14 * row.Lines;
        TextLabel* caption =
            AddText(row.Control + u"Caption"_s, Face::Caption, QRect(44, y, 122, LineHeight), row.Caption);
        ShareSize(caption);
        TextLabel* value = AddText(row.Control, Face::Value, QRect(172, y, 136, height), row.Value);
        // A stop of the Tab key, so that screen readers read line by line
        value->setFocusPolicy(Qt::TabFocus);
        caption->setBuddy(value);
        if (y == FirstLine) {
            value->setFocus();
        }
        y += row.Lines * LineHeight - (row.Lines - 1) * 8;
    }
    auto* img1 = new PictureLabel(this, u"img1"_s, QRect(22, 20, 10, 10));
    img1->Show(&marker);
    CommandLabel* lblCont = AddCommand(u"lblCont"_s, u"Close"_s, QRect(130, 308, 60, 19));
    lblCont->SetKey(u"Enter"_s);
    connect(lblCont, &CommandLabel::clicked, this, &frmStatus::close);
}

void frmStatus::keyPressEvent(QKeyEvent* event) {
    if (IsEnter(*event)) {
        close();
    } else {
        CommandDialog::keyPressEvent(event);
    }
}

}  // namespace vorlund
