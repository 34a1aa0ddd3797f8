// SPDX-License-Identifier: MIT
#include <QAccessible>
#include <QLabel>
#include <QTest>

#include "tests/rules/small_worlds.h"
#include "tests/screens/driver.h"
#include "ui/parts/accessible.h"

// The texts of every window, as the accessibility interface gives them to a screen reader.

namespace vorlund {
namespace {

/// The visible controls as a screen reader gets them: texts, <pictures>, [fields] and other roles, each with
/// its key in brackets and, after a colon, its description.
QString Spoken(const QString& window) {
    static const QMap<QAccessible::Role, QString> forms{
        {QAccessible::StaticText, "%1"},     {QAccessible::Graphic, "<%1>"},
        {QAccessible::EditableText, "[%1]"}, {QAccessible::RadioButton, "one %1"},
        {QAccessible::CheckBox, "tick %1"},  {QAccessible::Button, "%1"},
        {QAccessible::List, "list %1"}};
    QStringList parts;
    for (QWidget* child : Window(window).findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        QAccessibleInterface& control = *QAccessible::queryAccessibleInterface(child);
        const auto* label = qobject_cast<const QLabel*>(child);
        const bool named = label != nullptr && label->buddy() != nullptr;  // spoken as the field's name
        if (child->isVisible() && !child->isWindow() && !named && forms.contains(control.role())) {
            const bool isButton = control.role() == QAccessible::Button;
            const QString key = isButton ? control.text(QAccessible::Accelerator) : QString();
            QString name = control.text(QAccessible::Name);
            for (const auto& [caption, relation] : control.relations(QAccessible::Label)) {
                name.prepend(label != nullptr ? caption->text(QAccessible::Name) + ' ' : "");
            }
            const QString more = control.text(QAccessible::Description).remove("Key: " + key);
            parts << forms[control.role()].arg(name) + (key.isEmpty() ? key : " (" + key + ")") +
                         (more.isEmpty() ? more : ": " + more);
        }
    }
    return parts.join('|');
}

TEST(Texts, OfTheFirstScreens) {
    DescribeScreensToAssistiveTechnology();
    {
        Sitting newGame;
        Type(" ");
        EXPECT_EQ(Spoken("frm2"),
                  "Select the number of players for the game:|one 2 Players|one 3 Players|one 4 Players|one "
                  "5 Players|"
                  "Continue > (Enter)");
        Type("\n");
        const QString row =
            "|[Player %1's name:]|tick Player %1 is played by the computer: Player %1 is played by the "
            "computer";
        EXPECT_EQ(Spoken("frm2"),
                  "Enter the players' names:" + row.arg(1) + row.arg(2) + "|Continue > (Enter)");
    }
    Sitting sitting;
    EXPECT_TRUE(QTest::qWaitFor([] { return Text("frm1", "lbl3").size() == 25; }));
    EXPECT_EQ(Spoken("frm1"),
              "<Vorlund, under a picture of the earth>|Vorlund, a world war.|For two to five rulers.|"
              "Made by the Vorlund team.|Play Game|Load Game|Exit");
    Click("frm1", "lblLoad");
    EXPECT_EQ(Spoken("frmLoad"),
              "Select a saved game from the list below:|list Select a saved game from the list below:|"
              "Load Game (Enter): Select a saved game first.|Delete Game (Delete): Select a saved game "
              "first.|Cancel|"
              "There are no saved games.");
    Click("frmLoad", "lblGo(2)");
}

TEST(Texts, OfTheBoardItsDialogsAndReports) {
    DescribeScreensToAssistiveTechnology();
    Sitting sitting;
    sitting.Resume(NewGame(2, "7 Anna 12/1F; 16 Ben 1/0D; Anna Money 1000 MovesLeft 1 NuclearLevel 3"));
    EXPECT_TRUE(Spoken("frm3").endsWith(
        "<Player 1>|<Factory>|<Player 2>|<Defense>|12/1|1/0|Buy (B)|Sell (S)|Transport (R)|"
        "Attack (A)|Upgrade (U)|Status (T)|End Turn (E)|Save (V)|F1: the rules"))
        << Spoken("frm3").toStdString();
    const QString quantities = "[Number of Troops%1:]: %4|[Number of Tanks%2:]: %5|";
    const QString noTerritory = "Enter a territory of yours first.";
    const QString units = quantities.arg("", "", noTerritory, noTerritory);
    const std::vector<std::array<QString, 3>> rows{
        {"b", "frmBuy",
         "You have $1000 to spend.|[Territory # with Factory:]: Possible: 7|" +
             quantities.arg("($10)", "($40)", "at most 100 with $1000", "at most 25 with $1000") +
             "[Barrels of Oil($1/3):]: at most 999 with $1000|Buy (Enter)"},
        {"s", "frmSell",
         "You may sell oil or Troops/Tanks in any of your territories.|[Territory #:]: Possible: 7|" +
             quantities.arg("($7)", "($30)", noTerritory, noTerritory) +
             "[Barrels of Oil($1/3):]: 0 barrels|Sell (Enter)"},
        {"r", "frmTransport",
         "Move Tanks/Troops:|You have 1 move left this turn.|[Original territory #:]: Possible: 7|[Resulting "
         "territory "
         "#:]|" +
             units + "Move (Enter)"},
        {"a", "frmAttack",
         "Normal Attack:|You have 2 attacks left this turn.|[Attacking territory #:]: No territory is "
         "possible|[Defending "
         "territory "
         "#:]|" +
             units +
             "Attack (Enter)|Nuclear Attack:|You do not have a nuclear bomb.|[Territory # to nuke:]|"
             "Launch Nuke (Enter): You have no nuclear bomb."},
        {"u", "frmUpgrade",
         "You have $1000 to spend.|Current Economy upgrade: 0\nNext upgrade cost: $150|Upgrade (Alt+1): "
         "Economy|"
         "Current Warfare upgrade: 0\nNext upgrade cost: $200|Upgrade (Alt+2): Warfare|"
         "Current Nuclear upgrade: 3\nNext upgrade cost: $max|Upgrade (Alt+3): Nuclear|"
         "[Territory #:]: Build Factory. No territory is possible|Build Factory (Enter)|$180|[Territory #:]: "
         "Build Defense|"
         "Build Defense (Enter)|$100"},
        {"t", "frmStatus",
         "Name: Anna|Money: $1000|Oil Barrels: 0|Total Troops: 12|Total Tanks: 1|Total Factories: 1|"
         "Turns in Debt: 0|Economy Upgrade: 0|Warfare Upgrade: 0|Nuclear Upgrade: 3\nDeveloping nuke...|"
         "Attacks/Moves left: 2 / 1|Current Upkeep/Turn: + $20|<Player 1>|Close (Enter)"},
        {"v", "frmSave", "[Enter a name for the saved game:]|Enter (Enter)"},
        {"e", "frmReport", "Upkeep status for Player 2, Ben.|<Player 2>|Continue (Enter)"}};
    for (const auto& [keys, window, text] : rows) {
        Type(keys);
        EXPECT_EQ(Spoken(window), text);
        Type("\033");
    }
    Type("t");
    EXPECT_TRUE(Spoken("frmStatus").contains("<Player 2>"));
}

}  // namespace
}  // namespace vorlund
