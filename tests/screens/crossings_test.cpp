// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

#include "tests/rules/scripted_random.h"
#include "tests/rules/small_worlds.h"
#include "tests/screens/hands.h"

// Where screens meet: dialogs, reports, message boxes and the end of a turn, of a player and of the game.

namespace vorlund {
namespace {

const QString AnnasTurn = "Vorlund - Anna's turn [bsrautev]";
const QString Waiting = "Vorlund - Anna's turn [] | ";
const QString Leave =
    "Question: Closing this game window will end the game.\nAre you sure you want to continue?";
const QString Nothing = "Warning: The data you entered will not make a transaction.";

const GameState Neighbours = NewGame(3, "7 Anna 10/1F; 8 Ben 2/0; 36 Cleo 5/0; Anna Money 1000 HasNuke 1");

TEST(Crossings, ARefusalLeavesTheGameTheDialogAndItsEntries) {
    const QString number = " you need a valid territory number (1-42).\nNo transaction was made.";
    const std::vector<std::pair<QString, QString>> rows{
        {"b7", "The data you entered will not make a transaction."},
        {"b43\t1", "To buy Troops" + number},
        {"s0\t\t1", "To sell Tanks" + number},
        {"s\t\t\t33", "You cannot sell more oil barrels than you have."},
        {"r7\t43\t1",
         "You entered invalid transport data...\nCheck the validity of your move and try again."},
        {"a7\t8", "Enter a number for either troops or tanks."},
        {"a\t\t\t\t43", "The country number must be 1-42."},
        {"uab", "Building a factory requires a valid territory number (1-42).\nNo transaction was made."},
        {"u\t0", "Building defense requires a valid territory number (1-42).\nNo transaction was made."},
        {"va:b", "A game name cannot hold a control character or any of these:\n\\ / : * ? \" < > |"}};
    Sitting sitting;
    sitting.Resume(Neighbours);
    const GameState before = sitting.Game();
    for (const auto& [keys, message] : rows) {
        SCOPED_TRACE(keys.toStdString());
        sitting.Expect({"Warning: " + message});
        Type(keys + u'\n');
        QStringList entries;
        for (const QLineEdit* field : QWidget::find(Keyboard().winId())->findChildren<QLineEdit*>()) {
            entries << field->text();
        }
        EXPECT_TRUE(entries.join('\t').startsWith(keys.mid(1))) << entries.join('|').toStdString();
        EXPECT_TRUE(sitting.Game() == before);
        Type("\033");
        EXPECT_EQ(Desktop(), AnnasTurn);
    }
}

TEST(Crossings, DialogsReportsAndTheEndOfTheTurn) {
    Sitting sitting;
    sitting.Resume(Neighbours);
    Type("b7\t1\n");
    EXPECT_EQ(Desktop(), AnnasTurn + " | Vorlund - Buy");
    Click("frm3", "lblTransport");
    EXPECT_EQ(Desktop(), Waiting + "Vorlund - Buy | Vorlund - Transport");
    Type("7\t6\t2");
    Close("frmReport");  // gives the commands back, although a dialog is open
    EXPECT_EQ(Desktop(), AnnasTurn + " | Vorlund - Transport");
    Click("frm3", "lblTransport");
    EXPECT_EQ(Desktop(), Waiting + "Vorlund - Transport");
    Press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(Text("frmTransport", "lblA"), "Move to Western USA was successful.");
    Type("\033u");
    EXPECT_EQ(Desktop(), Waiting + "Vorlund - Upgrade");
    Click("frm3", "lblBuy");  // which is not to be had
    EXPECT_EQ(Desktop(), Waiting + "Vorlund - Upgrade");
    Type("\033b7\t1\n");
    Click("frm3", "lblUpgrade");
    Close("frmReport");
    Click("frm3", "lblBuy");
    Type("7\t1\n");
    sitting.Expect({Leave, "n"});
    Close("frm3");
    EXPECT_EQ(Desktop(), AnnasTurn + " | Vorlund - Upgrade | Vorlund - Buy");
    Click("frm3", "lblEndTurn");
    EXPECT_EQ(Desktop(), "Vorlund - Ben's turn [] | Vorlund - Upkeep");
    EXPECT_TRUE(ReportText().startsWith("[Player 2] Upkeep status for Player 2, Ben.\n"));
    sitting.Expect({Leave, "y"});
    EXPECT_TRUE(Ends([] { Close("frm3"); }));
}

TEST(Crossings, DeathClosesTheOtherDialogs) {
    Sitting sitting(std::make_unique<ScriptedRandom>(QString("11/12 ").repeated(12).toStdString() + "0/13"));
    sitting.Resume(Neighbours);
    Type("s7\t1\n");
    Click("frm3", "lblUpgrade");
    Close("frmReport");
    Click("frm3", "lblAttack");
    Type("7\t8\t9\t1\n");
    EXPECT_TRUE(ReportText().endsWith("You have killed yourself... you have no troops or tanks remaining."));
    EXPECT_EQ(Desktop(), "Vorlund - Anna's turn [e] | Vorlund - Battle Results");
    EXPECT_EQ(Text("frm3", "lblCntry(6)"), "(not seen)");
    Type("\nbe");
    EXPECT_EQ(Desktop(), "Vorlund - Ben's turn [] | Vorlund - Upkeep");
}

TEST(Crossings, NobodyWinsByASale) {
    Sitting sitting(std::make_unique<ScriptedRandom>("0/12"));
    sitting.Resume(NewGame(2, "7 Anna 3/0; 8 Ben 1/0"));
    Type("s7\t1\n");
    Click("frm3", "lblUpgrade");
    Close("frmReport");
    Click("frm3", "lblAttack");
    Type("7\t8\t2\n");
    Click("frm3", "lblSell");
    sitting.Expect({"Warning: All players are dead, no one wins..."});
    Type("8\t2\n");
    EXPECT_EQ(Desktop(), "Vorlund - Anna's turn [] | Vorlund - Battle Results");
    EXPECT_FALSE(Control("frm3", "imgGameOver").isVisible());
    EXPECT_EQ(MapFault(sitting.Game()), "");
    Click("frmReport", "lblCont");
    EXPECT_EQ(Desktop(), "Vorlund - Anna's turn []");
    EXPECT_TRUE(Ends([] { Close("frm3"); }));
}

// The windows that exist, in alphabetical order, whether they are seen or not.
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
        const int music = sitting.Recorded().Music;
        QTest::qWait(300);
        EXPECT_EQ(sitting.Recorded().Music, music);  // the title's timers have gone with it
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
    sitting.Resume(Neighbours);
    for (const char* keys : {"", "b1\033", "s1\033", "r1\033", "a1\033", "u1\033", "t\033", "v1\033", "b"}) {
        Type(keys);
        existing << Existing();
    }
    EXPECT_EQ(existing.join(" | "),
              "frm1 frmLoad | frm1 | " + QString("frm3 frmReport | ").repeated(8) + "frm3 frmBuy frmReport");
    EXPECT_EQ(Text("frmBuy", "txtC1"), "");
    sitting.Expect({Leave, "y"});
    EXPECT_TRUE(Ends([] { Close("frm3"); }));
    EXPECT_EQ(Existing(), "frm3 frmReport");
}

TEST(Crossings, HandsQuickerThanAClosing) {
    Sitting sitting;
    sitting.Resume(Neighbours);
    Type("b");
    Window("frmBuy").close();
    QKeyEvent key(QEvent::KeyPress, Qt::Key_B, {}, "b");
    QApplication::sendEvent(&Window("frm3"), &key);  // before the closed dialog is gone
    QTest::qWait(1);
    EXPECT_EQ(Desktop(), Waiting + "Vorlund - Buy");
    sitting.Expect({Nothing, "", [] {
                        QApplication::activeModalWidget()->hide();
                        Window("frmBuy").close();
                    }});
    Click("frmBuy", "lblGo");
    EXPECT_EQ(Desktop(), Waiting + "Vorlund - Buy");
    Type("7\t1");
    QTest::mouseDClick(Window("frmBuy").windowHandle(), Qt::LeftButton, {},
                       Control("frmBuy", "lblGo").geometry().center());
    EXPECT_EQ(sitting.Game().PlayerAt(0).Money, 990);  // one troop, not two
}

}  // namespace
}  // namespace vorlund
