// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <QWindow>

#include "tests/engine/seeded_random.h"
#include "tests/rules/small_worlds.h"
#include "tests/screens/hands.h"
#include "ui/parts/accessible.h"

// One press of a key and one click do one thing: held keys, double clicks, modifiers, what a desktop's theme
// takes Enter for, and the message boxes, behind which nothing else is done.

namespace vorlund {
namespace {

const QString AnnasTurn = "Vorlund - Anna's turn [bsrautev]";
const QString Waiting = "Vorlund - Anna's turn [] | ";
const QString Leave =
    "Question: Closing this game window will end the game.\nAre you sure you want to continue?";
const QString NoTrade = "Warning: The data you entered will not make a transaction.";

const GameState Neighbours = NewGame(3, "7 Anna 10/1F; 8 Ben 2/0; 36 Cleo 5/0; Anna Money 1000 HasNuke 1");
const GameState Computers = NewGame(4,
                                    "7 Anna 10/1F; 16 Ben 2/0; 36 Cleo 5/0; 40 Dora 5/0; Ben IsComputer 1; "
                                    "Cleo IsComputer 1; Anna Money 100; Dora Money 1000");

/// A key that is held: pressed once and repeated by the server, with the toolkit's repeat flag or, as it
/// often comes under X, as a release and a press of one time.
void Hold(Qt::Key key, const QString& text, bool flagged) {
    static ulong time = 1000;
    time += 1000;
    const auto send = [&](QEvent::Type type, bool repeats) {
        QKeyEvent event(type, key, {}, key, 0, 0, text, repeats && flagged);
        event.setTimestamp(time);
        QApplication::sendEvent(&Keyboard(), &event);
        QCoreApplication::processEvents();
    };
    send(QEvent::KeyPress, false);
    for (int repeat = 0; repeat < 3; ++repeat) {
        time += 40;
        send(QEvent::KeyRelease, true);
        send(QEvent::KeyPress, true);
    }
    time += 1000;
    send(QEvent::KeyRelease, false);
}

TEST(Input, AKeyThatIsHeldActsOnce) {
    for (const bool flagged : {true, false}) {
        SCOPED_TRACE(flagged ? "repeats with the flag" : "repeats without the flag");
        Sitting sitting;
        sitting.Resume(Neighbours);
        Hold(Qt::Key_V, "v", flagged);
        EXPECT_EQ(Text("frmSave", "txtSave"), "");  // the key that opened it types nothing
        Hold(Qt::Key_X, "x", flagged);
        EXPECT_EQ(Text("frmSave", "txtSave"), "xxxx");  // but in a field keys repeat
        Hold(Qt::Key_Backspace, "\b", flagged);
        EXPECT_EQ(Text("frmSave", "txtSave"), "");
        Hold(Qt::Key_Escape, "\033", flagged);
        EXPECT_EQ(Desktop(), AnnasTurn);
        Hold(Qt::Key_Tab, "\t", flagged);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "lblAttack");
        Type("b");
        sitting.Expect({NoTrade, "", [flagged] { Hold(Qt::Key_Return, "\r", flagged); }});
        Type("\n");
        EXPECT_EQ(Desktop(), Waiting + "Vorlund - Buy");
        sitting.Expect({NoTrade});
        Hold(Qt::Key_Enter, "\r", flagged);
        Type("7\t1");
        Hold(Qt::Key_Return, "\r", flagged);
        EXPECT_EQ(Desktop(), AnnasTurn + " | Vorlund - Buy");
        EXPECT_EQ(sitting.Game().PlayerAt(0).Money, 990);
    }
    Sitting sitting(std::make_unique<SeededRandom>(3));
    sitting.Resume(Computers);
    Type("e");
    Hold(Qt::Key_Return, "\r", false);
    EXPECT_EQ(Desktop(), "Vorlund - Cleo's turn [] | Computer player Cleo's status");
}

TEST(Input, AnAcceleratorThatIsHeldActsOnce) {
    Sitting sitting;
    sitting.Resume(Neighbours);
    Type("u");
    Press(Qt::Key_1, Qt::AltModifier);
    for (int repeat = 0; repeat < 2; ++repeat) {
        qt_sendShortcutOverrideEvent(&Keyboard(), 0, Qt::Key_1, Qt::AltModifier, "1", true);
    }
    EXPECT_EQ(sitting.Game().PlayerAt(0).EconomyLevel, 1);
}

TEST(Input, ALetterRunsItsCommandWithNoModifierButShift) {
    Sitting sitting;
    sitting.Resume(Neighbours);
    for (const auto modifier :
         {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier, Qt::GroupSwitchModifier}) {
        QTest::keyClick(&Keyboard(), 'b', modifier);
        EXPECT_EQ(Desktop(), AnnasTurn) << modifier;
    }
    QKeyEvent wayland(QEvent::KeyPress, Qt::Key_B, {}, 56, 'b', 0x80, "b");  // where AltGr is no modifier
    QApplication::sendEvent(&Keyboard(), &wayland);
    EXPECT_EQ(Desktop(), AnnasTurn);
    QTest::keyClick(&Keyboard(), 'B', Qt::ShiftModifier);
    EXPECT_EQ(Desktop(), Waiting + "Vorlund - Buy");
}

// Some desktops' themes hold Enter among the keys that press a button.
TEST(Input, EnterOnAChoiceOrAToggleIsTheWindows) {
    const Sitting sitting;
    Type(" \n");
    EXPECT_EQ(Text("frm2", "lbl1"), "Enter the players' names:");
    Click("frm2", "cmp(0)");
    Type("\n");
    EXPECT_EQ(Text("frm2", "lbl1"), "Enter a name for Player 2.");
    EXPECT_EQ(Text("frm2", "txtN(0)"), "Computer");
    Type(" ");
    EXPECT_EQ(Text("frm2", "txtN(0)"), "");
}

TEST(Input, EnterAndEscapeSayNo) {
    Sitting sitting;
    sitting.Resume(Neighbours);
    for (const QString keys : {"\n", "\033"}) {
        sitting.Expect({Leave, keys});
        Close("frm3");
        EXPECT_EQ(Desktop(), AnnasTurn);
    }
}

struct {
    int Start = 0;
    QPoint Place;
} doubleClick;

void ClickOn(QWidget& control) {
    QWidget& window = *control.window();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                      control.mapTo(&window, control.rect().center()));
    QCoreApplication::processEvents();
}

/// The first half of a double click.
void FirstClick(QWidget& control) {
    doubleClick = {QTest::lastMouseTimestamp, control.mapToGlobal(control.rect().center())};
    ClickOn(control);
}

/// The second half, which hits a control that has come under the pointer in between.
void SecondClick(QWidget& control) {
    QWidget& window = *control.window();
    window.move(window.pos() + doubleClick.Place - control.mapToGlobal(control.rect().center()));
    QTest::lastMouseTimestamp = doubleClick.Start + 100;
    ClickOn(control);
}

QAbstractButton& InBox(QMessageBox::StandardButton button) {
    return *qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->button(button);
}

TEST(Input, NothingTakesTheSecondHalfOfADoubleClickThatBeganElsewhere) {
    Sitting sitting(std::make_unique<SeededRandom>(3));
    sitting.Put("a.vrs", Computers);
    FirstClick(Control("frm1", "lblLoad"));
    SecondClick(Control("frmLoad", "lblGo(2)"));
    EXPECT_EQ(Desktop(), "Vorlund - Load Game");
    FirstClick(Control("frmLoad", "lblGo(2)"));
    SecondClick(Control("frm1", "lblPlay"));
    EXPECT_EQ(Desktop(), "Vorlund");
    Click("frm1", "lblLoad");
    Type("a");
    const QString question = "NoIcon: Confirm Delete: Are you sure you want to delete the game a.vrs?";
    sitting.Expect({question, "n", [] { SecondClick(InBox(QMessageBox::Yes)); }});
    FirstClick(Control("frmLoad", "lblGo(1)"));
    Type("\nb7\t1");
    FirstClick(Control("frmBuy", "lblGo"));
    SecondClick(Control("frm3", "lblEndTurn"));
    EXPECT_EQ(Desktop(), AnnasTurn + " | Vorlund - Buy");
    Type("\nb");
    sitting.Expect({NoTrade, "", [] { FirstClick(InBox(QMessageBox::Ok)); }});
    Type("\n");
    SecondClick(Control("frm3", "lblEndTurn"));
    EXPECT_EQ(Desktop(), Waiting + "Vorlund - Buy");
    Type("\033e");
    FirstClick(Control("frmReport", "lblCont"));
    SecondClick(Control("frmReport", "lblCont"));  // of the next report
    EXPECT_EQ(Desktop(), "Vorlund - Cleo's turn [] | Computer player Cleo's status");
    SecondClick(Control("frmReport", "lblCont"));  // nor a third click
    EXPECT_EQ(Desktop(), "Vorlund - Cleo's turn [] | Computer player Cleo's status");
    FirstClick(Control("frmReport", "lblCont"));
    SecondClick(Control("frmReport", "lblCont"));
    EXPECT_EQ(Desktop(), "Vorlund - Dora's turn [] | Vorlund - Upkeep");
    Type("\nu");
    FirstClick(Control("frmUpgrade", "lblGo1"));
    SecondClick(Control("frmUpgrade", "lblGo1"));  // where the first one went: two clicks
    EXPECT_EQ(sitting.Game().PlayerAt(3).EconomyLevel, 2);
}

/// A press as a screen reader makes it.
void PressByScreenReader(const QString& window, const QString& control) {
    QAccessible::queryAccessibleInterface(&Control(window, control))
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
}

TEST(Input, NothingElseActsOrClosesWhileABoxWaits) {
    DescribeScreensToAssistiveTechnology();
    Sitting sitting;
    Type(" \n");
    sitting.Expect(
        {"NoIcon: Closing this window will terminate your new game.\n"
         "Press 'Yes' to exit or 'No' to return.",
         "n", [] {
             PressByScreenReader("frm2", "cmp(0)");
             PressByScreenReader("frm2", "lblCont");
         }});
    Close("frm2");
    EXPECT_EQ(Text("frm2", "lbl1"), "Enter the players' names:");
    EXPECT_EQ(Text("frm2", "txtN(0)"), "");
    PressByScreenReader("frm2", "cmp(0)");
    EXPECT_EQ(Text("frm2", "txtN(0)"), "Computer");
}

TEST(Input, ARefusalHoldsEverythingButAnOutrightClosing) {
    DescribeScreensToAssistiveTechnology();
    Sitting sitting;
    sitting.Resume(Neighbours);
    Type("b7\t1\n");
    Click("frm3", "lblUpgrade");
    Close("frmReport");
    Window("frmUpgrade").activateWindow();
    Type("0");
    sitting.Expect(
        {"Warning: Building a factory requires a valid territory number (1-42).\n"
         "No transaction was made.",
         "\n", [] {
             PressByScreenReader("frm3", "lblEndTurn");
             Close("frmUpgrade");
             Window("frmUpgrade").close();
         }});
    Type("\n");
    EXPECT_EQ(Desktop(), AnnasTurn + " | Vorlund - Upgrade");
    Type("\033b7\t1\n");
    Click("frm3", "lblBuy");
    sitting.Expect({NoTrade, "\n", [] { static_cast<Screen&>(Window("frmReport")).CloseOutright(); }});
    Type("\n");
    EXPECT_EQ(Desktop(), Waiting + "Vorlund - Buy");
}

TEST(Input, NothingClosesWhileAWinnerIsAnnounced) {
    const std::string continued =
        "27 Anna 1/0; 35 Ben 1/0; 26 Cleo 100/0; 34 Cleo 300/0; Ben IsComputer 1; Cleo IsComputer 1";
    for (const auto& [game, winner, player] :
         {std::tuple(NewGame(2, "27 Anna 1/0; 26 Ben 100/0; Ben IsComputer 1"), "Ben", 2),
          {NewGame(3, continued), "Cleo", 3}}) {
        SCOPED_TRACE(winner);
        Sitting sitting(std::make_unique<SeededRandom>(3));
        sitting.Resume(game);
        sitting.Expect({QString("Warning: Player %1, %2, wins the game!").arg(player).arg(winner), "\n", [] {
                            for (const char* window : {"frmReport", "frm3"}) {
                                QCloseEvent request;  // as the window manager's comes
                                QApplication::sendEvent(Window(window).windowHandle(), &request);
                                Close(window);
                                Window(window).close();
                            }
                            EXPECT_TRUE(ReportText().endsWith(" is now dead.\n"));
                        }});
        Type(player == 2 ? "e" : "e\n");
        EXPECT_EQ(Desktop(),
                  QString("Vorlund - %1 wins [] | Computer player %1's status").arg(QLatin1String(winner)));
        EXPECT_TRUE(Control("frm3", "imgGameOver").isVisible());
        Type("\nbe");
        EXPECT_EQ(Desktop(), QString("Vorlund - %1 wins []").arg(QLatin1String(winner)));
    }
}

}  // namespace
}  // namespace vorlund
