// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <QWindow>

#include "tests/rules/scripted_random.h"
#include "tests/screens/driver.h"

// Interactions of dialogs, reports and message boxes with each other and with the end of a turn, of a player
// and of the game.

namespace vorlund {
namespace {

TEST(Crossings, ARefusalLeavesTheGameTheDialogAndItsEntries) {
    const QString number = " you need a valid territory number (1-42).\nNo transaction was made.";
    const std::vector<std::pair<QString, QString>> rows{
        {"b7", "The data you entered will not make a transaction."},
        {"b43\t1", "To buy Troops" + number},
        {"s\t\t\t33", "You cannot sell more oil barrels than you have."},
        {"r7\t43\t1",
         "You entered invalid transport data...\nCheck the validity of your move and try again."},
        {"a7\t8", "Enter a number for either troops or tanks."},
        {"a\t\t\t\t43", "The country number must be 1-42."},
        {"uab", "Building a factory requires a valid territory number (1-42).\nNo transaction was made."},
        {"u\t0", "Building defense requires a valid territory number (1-42).\nNo transaction was made."},
        {"va:b", "A game name cannot hold a control character or any of these:\n\\ / : * ? \" < > |"}};
    Sitting sitting;
    sitting.Resume(ThreePlayers);
    const GameState before = sitting.Game();
    for (const auto& [keys, message] : rows) {
        SCOPED_TRACE(keys.toStdString());
        sitting.Expect({"Warning: " + message});
        Type(keys + u'\n');
        EXPECT_TRUE(Entries().replace('|', '\t').startsWith(keys.mid(1))) << Entries().toStdString();
        EXPECT_TRUE(sitting.Game() == before);
        EXPECT_EQ(Type("\033"), AnnasTurn);
    }
}

TEST(Crossings, DialogsReportsAndTheEndOfTheTurn) {
    Sitting sitting;
    sitting.Resume(ThreePlayers);
    EXPECT_EQ(Type("b7\t1\n"), AnnasTurn + " | Vorlund - Buy");
    const auto reportOwner = [] { return Window("frmReport").windowHandle()->transientParent(); };
    EXPECT_EQ(reportOwner(), nullptr);
    EXPECT_EQ(QGuiApplication::focusWindow(), Window("frmReport").windowHandle());
    EXPECT_EQ(Click("frm3", "lblTransport"), AnnasDisabledBoard + "Vorlund - Buy | Vorlund - Transport");
    Type("7\t6\t2\t1");
    EXPECT_EQ(Close("frmReport"), AnnasTurn + " | Vorlund - Transport") << "with the commands enabled";
    EXPECT_EQ(QGuiApplication::focusWindow(), Window("frm3").windowHandle());
    EXPECT_EQ(Click("frm3", "lblTransport"), AnnasDisabledBoard + "Vorlund - Transport");
    Press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(Text("frmTransport", "lblA") + Entries(), "Move to Western USA was successful.7|6||");
    EXPECT_EQ(Type("\033u"), AnnasDisabledBoard + "Vorlund - Upgrade");
    EXPECT_EQ(Click("frm3", "lblBuy"), AnnasDisabledBoard + "Vorlund - Upgrade") << "a disabled command";
    Type("\033b7\t1\n");
    Click("frm3", "lblUpgrade");
    Close("frmReport");
    Click("frm3", "lblBuy");
    Type("7\t1\n");
    sitting.Expect({LeaveQuestion, "n"});
    EXPECT_EQ(Close("frm3"), AnnasTurn + " | Vorlund - Upgrade | Vorlund - Buy");
    EXPECT_EQ(Click("frm3", "lblEndTurn"), "Vorlund - Ben's turn [] | Vorlund - Upkeep");
    EXPECT_TRUE(ReportText().startsWith("[Player 2] Upkeep status for Player 2, Ben.\n"));
    EXPECT_EQ(reportOwner(), Window("frm3").windowHandle());
    sitting.Expect({LeaveQuestion, "y"});
    EXPECT_TRUE(EndsProgram([] { Close("frm3"); }));
}

TEST(Crossings, EliminationClosesTheOtherDialogs) {
    Sitting sitting(std::make_unique<ScriptedRandom>(QString("11/12 ").repeated(12).toStdString() + "0/13"));
    sitting.Resume(ThreePlayers);
    Type("s7\t1\n");
    Click("frm3", "lblUpgrade");
    Close("frmReport");
    Click("frm3", "lblAttack");
    EXPECT_EQ(Type("7\t8\t9\t1\n"), "Vorlund - Anna's turn [e] | Vorlund - Battle Results");
    EXPECT_TRUE(ReportText().endsWith("You have killed yourself... you have no troops or tanks remaining."));
    EXPECT_EQ(Text("frm3", "lblCntry(6)"), "(not seen)");
    EXPECT_EQ(Type("\nbe"), "Vorlund - Ben's turn [] | Vorlund - Upkeep");
}

TEST(Crossings, ASaleEndsTheGameWithoutAWinner) {
    Sitting sitting(std::make_unique<ScriptedRandom>("0/12"));
    sitting.Resume(NewGame(2, "7 Anna 3/0; 8 Ben 1/0"));
    Type("s7\t1\n");
    Click("frm3", "lblUpgrade");
    Close("frmReport");
    Click("frm3", "lblAttack");
    Type("7\t8\t2\n");
    Click("frm3", "lblSell");
    sitting.Expect({"Warning: All players are dead, no one wins..."});
    EXPECT_EQ(Type("8\t2\n"), "Vorlund - Anna's turn [] | Vorlund - Battle Results");
    EXPECT_FALSE(Control("frm3", "imgGameOver").isVisible());
    EXPECT_EQ(MapFault(sitting.Game()), "");
    EXPECT_EQ(Click("frmReport", "lblCont"), "Vorlund - Anna's turn []");
    EXPECT_TRUE(EndsProgram([] { Close("frm3"); }));
}

// All screens that exist, hidden ones too, in alphabetical order.
QString Existing() {
    QTest::qWait(1);
    QStringList names;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (qobject_cast<const Screen*>(window) != nullptr) {
            names << window->objectName();
        }
    }
    names.sort();
    return names.join(' ');
}

TEST(Crossings, AClosedWindowIsDestroyed) {
    QStringList existing;
    {
        Sitting sitting;
        Type(" ");
        existing << Existing();
        Type("\nAnna\t\tBen\n");
        Window("frmSelect");
        existing << Existing();
        Type("7\n8\n");
        existing << Existing();
    }
    EXPECT_EQ(existing.join(" | "), "frm2 | frm3 frmReport frmSelect | frm3 frmReport");
    Sitting sitting;
    Click("frm1", "lblLoad");
    existing = {Existing()};
    Close("frmLoad");
    existing << Existing();
    sitting.Resume(ThreePlayers);
    for (const char* keys : {"", "b1\033", "s1\033", "r1\033", "a1\033", "u1\033", "t\033", "v1\033", "b"}) {
        Type(keys);
        existing << Existing();
    }
    EXPECT_EQ(existing.join(" | "),
              "frm1 frmLoad | frm1 | " + QString("frm3 frmReport | ").repeated(8) + "frm3 frmBuy frmReport");
    EXPECT_EQ(Text("frmBuy", "txtC1"), "");
    sitting.Expect({LeaveQuestion, "y"});
    EXPECT_TRUE(EndsProgram([] { Close("frm3"); }));
    EXPECT_EQ(Existing(), "frm3 frmReport");
}

TEST(Crossings, InputToAClosingDialog) {
    Sitting sitting;
    sitting.Resume(ThreePlayers);
    Type("b");
    QWidget& closing = Window("frmBuy");
    closing.close();
    QKeyEvent key(QEvent::KeyPress, Qt::Key_B, {}, "b");
    QApplication::sendEvent(&Window("frm3"), &key);  // before the event loop deletes the dialog
    QCloseEvent again;
    QApplication::sendEvent(&closing, &again);
    QTest::qWait(1);
    EXPECT_EQ(Desktop(), AnnasDisabledBoard + "Vorlund - Buy");
    sitting.Expect({NoTransaction, "", [] {
                        QApplication::activeModalWidget()->hide();
                        Window("frmBuy").close();
                    }});
    EXPECT_EQ(Click("frmBuy", "lblGo"), AnnasDisabledBoard + "Vorlund - Buy");
    Type("7\t1");
    QTest::mouseDClick(Window("frmBuy").windowHandle(), Qt::LeftButton, {},
                       Control("frmBuy", "lblGo").geometry().center());
    EXPECT_EQ(sitting.Game().PlayerAt(0).Money, 990) << "one troop, not two";
}

}  // namespace
}  // namespace vorlund
