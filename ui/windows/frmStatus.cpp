// SPDX-License-Identifier: MIT
#include "ui/windows/frmStatus.h"

#include "actions/status.h"
#include "ui/parts/keys.h"

namespace vorlund {
namespace {

constexpr QSize Size(320, 340);
constexpr int LineHeight = 22;

}  // namespace

frmStatus::frmStatus(DialogHost& host, const GameState& game, const Picture& marker)
    : CommandDialog(host, QStringLiteral("frmStatus"), {}, Size) {
    const StatusLines lines = DescribeStatus(game);
    SetTitle(lines.Title);
    struct Row {
        const char* Caption = nullptr;
        const char* Control = nullptr;
        const std::string& Value;
        int Lines = 1;
    };
    const std::array<Row, 12> rows{{{"Name:", "lblName", lines.Name},
                                    {"Money:", "lblMoney", lines.Money},
                                    {"Oil Barrels:", "lblOil", lines.Oil},
                                    {"Total Troops:", "lblTroops", lines.Troops},
                                    {"Total Tanks:", "lblTanks", lines.Tanks},
                                    {"Total Factories:", "lblFact", lines.Factories},
                                    {"Turns in Debt:", "lblDebt", lines.Debt},
                                    {"Economy Upgrade:", "lblEco", lines.Economy},
                                    {"Warfare Upgrade:", "lblWar", lines.Warfare},
                                    {"Nuclear Upgrade:", "lblNuc", lines.Nuclear, 2},
                                    {"Attacks/Moves left:", "lblAM", lines.AttacksMoves},
                                    {"Current Upkeep/Turn:", "lblUpkeep", lines.Upkeep}}};
    int y = 14;
    for (const Row& row : rows) {
        const int height = 8 + 14 * row.Lines;
        AddText(QString::fromLatin1(row.Control) + QStringLiteral("Caption"), Face::Caption,
                QRect(44, y, 122, LineHeight), row.Caption);
        AddText(QString::fromLatin1(row.Control), Face::Caption, QRect(172, y, 136, height), row.Value);
        y += row.Lines * LineHeight - (row.Lines - 1) * 8;
    }
    auto* img1 = new PictureLabel(this, QStringLiteral("img1"), QRect(22, 20, 10, 10));
    img1->Show(&marker);
    CommandLabel* lblCont =
        AddCommand(QStringLiteral("lblCont"), QStringLiteral("Close"), QRect(130, 308, 60, 19));
    lblCont->SetKey(QStringLiteral("Enter"));
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
