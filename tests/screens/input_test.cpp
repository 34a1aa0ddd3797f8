// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <QWindow>

#include "tests/engine/seeded_random.h"
#include "tests/screens/driver.h"
#include "ui/parts/accessible.h"

// Key repeats, modifiers, double clicks, the press keys of platform themes, and input while a message box is
// open.

namespace vorlund {
namespace {

const GameState Computers = NewGame(4,
                                    "7 Anna 10/1F; 16 Ben 2/0; 36 Cleo 5/0; 40 Dora 5/0; Ben IsComputer 1; "
                                    "Cleo IsComputer 1; Anna Money 100; Dora Money 1000");

/// Sends a key press with repeats, which have the toolkit's repeat flag or, as from many X servers, are a
/// release and a press with the same time stamp.
QString Hold(Qt::Key key, const QString& text, bool flagged) {
    static ulong time = 1000;
    time += 1000;
    const auto send = [&](QEvent::Type type, bool repeats) {
        QKeyEvent event(type, key, {}, key, 0, 0, text, repeats && flagged);
        event.setTimestamp(time);
        QApplication::sendEvent(&FrontWindow(), &event);
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
    return Desktop();
}

TEST(Input, AHeldKeyActsOnce) {
    for (const bool flagged : {true, false}) {
        SCOPED_TRACE(flagged ? "repeats with the flag" : "repeats without the flag");
        Sitting sitting;
        sitting.Resume(ThreePlayers);
        Hold(Qt::Key_V, "v", flagged);
        EXPECT_EQ(Text("frmSave", "txtSave"), "") << "the key that opened the dialog";
        Hold(Qt::Key_X, "x", flagged);
        EXPECT_EQ(Text("frmSave", "txtSave"), "xxxx");
        Hold(Qt::Key_Backspace, "\b", flagged);
        EXPECT_EQ(Text("frmSave", "txtSave"), "");
        EXPECT_EQ(Hold(Qt::Key_Escape, "\033", flagged), AnnasTurn);
        Hold(Qt::Key_Tab, "\t", flagged);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "lblAttack");
        Type("b");
        sitting.Expect({NoTransaction, "", [flagged] { Hold(Qt::Key_Return, "\r", flagged); }});
        EXPECT_EQ(Type("\n"), AnnasDisabledBoard + "Vorlund - Buy");
        sitting.Expect({NoTransaction});
        Hold(Qt::Key_Enter, "\r", flagged);
        Type("7\t1");
        EXPECT_EQ(Hold(Qt::Key_Return, "\r", flagged), AnnasTurn + " | Vorlund - Buy");
        EXPECT_EQ(sitting.Game().PlayerAt(0).Money, 990);
    }
    Sitting sitting(std::make_unique<SeededRandom>(3));
    sitting.Resume(Computers);
    Type("e");
    EXPECT_EQ(Hold(Qt::Key_Return, "\r", false), "Vorlund - Cleo's turn [] | Computer player Cleo's status");
}

TEST(Input, KeysWithoutATimeStampAreNotRepeats) {
    Sitting sitting;
    sitting.Resume(ThreePlayers);
    for (const auto& [key, text] : {std::pair(Qt::Key_B, "b"), {Qt::Key_Escape, "\033"}, {Qt::Key_B, "b"}}) {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, {}, key, 0, 0, text);
            QApplication::sendEvent(&FrontWindow(), &event);
        }
    }
    EXPECT_EQ(Desktop(), AnnasDisabledBoard + "Vorlund - Buy");
}

TEST(Input, AHeldAcceleratorActsOnce) {
    Sitting sitting;
    sitting.Resume(ThreePlayers);
    Type("u");
    Press(Qt::Key_1, Qt::AltModifier);
    for (int repeat = 0; repeat < 2; ++repeat) {
        qt_sendShortcutOverrideEvent(&FrontWindow(), 0, Qt::Key_1, Qt::AltModifier, "1", true);
    }
    EXPECT_EQ(sitting.Game().PlayerAt(0).EconomyLevel, 1);
}

TEST(Input, LettersRunCommandsWithoutModifiersOrWithShift) {
    Sitting sitting;
    sitting.Resume(ThreePlayers);
    for (const auto modifier :
         {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier, Qt::GroupSwitchModifier}) {
        QTest::keyClick(&FrontWindow(), 'b', modifier);
        EXPECT_EQ(Desktop(), AnnasTurn) << modifier;
    }
    QKeyEvent altGrOnWayland(QEvent::KeyPress, Qt::Key_B, {}, 56, 'b', 0x80, "b");
    QApplication::sendEvent(&FrontWindow(), &altGrOnWayland);
    EXPECT_EQ(Desktop(), AnnasTurn);
    QTest::keyClick(&FrontWindow(), 'B', Qt::ShiftModifier);
    EXPECT_EQ(Desktop(), AnnasDisabledBoard + "Vorlund - Buy");
}

// Also where Enter is among the platform theme's press keys.
TEST(Input, RadioButtonsAndTogglesPassEnterToTheWindow) {
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

TEST(Input, EnterAndEscapeAnswerNo) {
    Sitting sitting;
    sitting.Resume(ThreePlayers);
    for (const QString keys : {"\n", "\033"}) {
        sitting.Expect({LeaveQuestion, keys});
        EXPECT_EQ(Close("frm3"), AnnasTurn);
    }
}

struct {
    int Start = 0;
    QPoint Place;
} firstClick;

QString ClickOn(QWidget& control) {
    QWidget& window = *control.window();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                      control.mapTo(&window, control.rect().center()));
    return Desktop();
}

QString FirstClick(QWidget& control) {
    firstClick = {QTest::lastMouseTimestamp, control.mapToGlobal(control.rect().center())};
    return ClickOn(control);
}

/// Clicks at the place of the first click, within the double-click interval, after moving `control` there.
QString SecondClick(QWidget& control) {
    QWidget& window = *control.window();
    window.move(window.pos() + firstClick.Place - control.mapToGlobal(control.rect().center()));
    QTest::lastMouseTimestamp = firstClick.Start + 100;
    return ClickOn(control);
}

QAbstractButton& InBox(QMessageBox::StandardButton button) {
    return *qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->button(button);
}

TEST(Input, ASecondClickOnAnotherTargetIsDropped) {
    Sitting sitting(std::make_unique<SeededRandom>(3));
    sitting.Put("a.vrs", Computers);
    FirstClick(Control("frm1", "lblLoad"));
    EXPECT_EQ(SecondClick(Control("frmLoad", "lblGo(2)")), "Vorlund - Load Game");
    FirstClick(Control("frmLoad", "lblGo(2)"));
    EXPECT_EQ(SecondClick(Control("frm1", "lblPlay")), "Vorlund");
    Click("frm1", "lblLoad");
    Type("a");
    const QString question = "NoIcon: Confirm Delete: Are you sure you want to delete the game a.vrs?";
    sitting.Expect({question, "n", [] { SecondClick(InBox(QMessageBox::Yes)); }});
    FirstClick(Control("frmLoad", "lblGo(1)"));
    Type("\nb7\t1");
    FirstClick(Control("frmBuy", "lblGo"));
    EXPECT_EQ(SecondClick(Control("frm3", "lblEndTurn")), AnnasTurn + " | Vorlund - Buy");
    Type("\nb");
    sitting.Expect({NoTransaction, "", [] { FirstClick(InBox(QMessageBox::Ok)); }});
    Type("\n");
    EXPECT_EQ(SecondClick(Control("frm3", "lblEndTurn")), AnnasDisabledBoard + "Vorlund - Buy");
    Type("\033e");
    const QString cleosReport = "Vorlund - Cleo's turn [] | Computer player Cleo's status";
    FirstClick(Control("frmReport", "lblCont"));
    EXPECT_EQ(SecondClick(Control("frmReport", "lblCont")), cleosReport) << "of the next report";
    EXPECT_EQ(SecondClick(Control("frmReport", "lblCont")), cleosReport) << "a third click";
    FirstClick(Control("frmReport", "lblCont"));
    EXPECT_EQ(SecondClick(Control("frmReport", "lblCont")), "Vorlund - Dora's turn [] | Vorlund - Upkeep");
    Type("\nu");
    FirstClick(Control("frmUpgrade", "lblGo1"));
    SecondClick(Control("frmUpgrade", "lblGo1"));
    EXPECT_EQ(sitting.Game().PlayerAt(3).EconomyLevel, 2) << "two clicks on the same target";
}

TEST(Input, ASecondClickOnACommandDisabledInBetweenIsDropped) {
    Sitting sitting;
    sitting.Resume(ThreePlayers);
    FirstClick(Control("frm3", "lblBuy"));
    Type("\033");
    EXPECT_EQ(SecondClick(Control("frm3", "lblBuy")), AnnasTurn);
}

/// The press action of the accessibility interface.
void PressByScreenReader(const QString& window, const QString& control) {
    QAccessible::queryAccessibleInterface(&Control(window, control))
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
}

TEST(Input, AMessageBoxBlocksTheOtherWindows) {
    DescribeScreensToAssistiveTechnology();
    {
        Sitting sitting;
        Type(" ");
        PressByScreenReader("frm2", "cmp(0)");  // a hidden control
        Type("\n");
        sitting.Expect(
            {"NoIcon: Closing this window will terminate your new game.\nPress 'Yes' to exit or 'No' to "
             "return.",
             "n", [] {
                 PressByScreenReader("frm2", "cmp(0)");
                 PressByScreenReader("frm2", "lblCont");
             }});
        Close("frm2");
        EXPECT_EQ(Text("frm2", "lbl1") + Text("frm2", "txtN(0)"), "Enter the players' names:");
        PressByScreenReader("frm2", "cmp(0)");
        EXPECT_EQ(Text("frm2", "txtN(0)"), "Computer");
    }
    Sitting sitting;
    sitting.Resume(ThreePlayers);
    Type("b7\t1\n");
    Click("frm3", "lblUpgrade");
    Close("frmReport");
    Window("frmUpgrade").activateWindow();
    Type("0");
    sitting.Expect(
        {"Warning: Building a factory requires a valid territory number (1-42).\nNo transaction was made.",
         "\n", [] {
             PressByScreenReader("frm3", "lblEndTurn");
             Close("frmUpgrade");
             Window("frmUpgrade").close();
         }});
    EXPECT_EQ(Type("\n"), AnnasTurn + " | Vorlund - Upgrade");
    Type("\033b7\t1\n");
    Click("frm3", "lblBuy");
    sitting.Expect({NoTransaction, "\n", [] { static_cast<Screen&>(Window("frmReport")).CloseOutright(); }});
    EXPECT_EQ(Type("\n"), AnnasDisabledBoard + "Vorlund - Buy");
}

TEST(Input, TheWinnersMessageBlocksCloseRequests) {
    const std::string continued =
        "27 Anna 1/0; 35 Ben 1/0; 26 Cleo 100/0; 34 Cleo 300/0; Ben IsComputer 1; Cleo IsComputer 1";
    for (const auto& [game, winner, player] :
         {std::tuple(NewGame(2, "27 Anna 1/0; 26 Ben 100/0; Ben IsComputer 1"), QString("Ben"), 2),
          {NewGame(3, continued), QString("Cleo"), 3}}) {
        SCOPED_TRACE(player);
        Sitting sitting(std::make_unique<SeededRandom>(3));
        sitting.Resume(game);
        sitting.Expect({QString("Warning: Player %1, %2, wins the game!").arg(player).arg(winner), "\n", [] {
                            for (const char* window : {"frmReport", "frm3"}) {
                                QCloseEvent request;  // as from the window manager
                                QApplication::sendEvent(Window(window).windowHandle(), &request);
                                Close(window);
                                Window(window).close();
                            }
                            EXPECT_TRUE(ReportText().endsWith(" is now dead.\n"));
                            EXPECT_EQ(QApplication::activeModalWidget()->parentWidget(),
                                      &Window("frmReport"));
                        }});
        EXPECT_EQ(Type(player == 2 ? "e" : "e\n"),
                  "Vorlund - " + winner + " wins [] | Computer player " + winner + "'s status");
        EXPECT_TRUE(Control("frm3", "imgGameOver").isVisible());
        EXPECT_EQ(Type("\nbe"), "Vorlund - " + winner + " wins []");
    }
}

}  // namespace
}  // namespace vorlund
