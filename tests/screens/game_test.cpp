// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDir>
#include <QTest>
#include <QToolTip>
#include <QWindow>

#include "tests/engine/seeded_random.h"
#include "tests/rules/scripted_random.h"
#include "tests/screens/driver.h"

// Whole games by mouse and keys, on any platform plugin; the title screen; the sounds.

namespace vorlund {
namespace {

const QString Terminate = "NoIcon: Closing this window will terminate your new game.\n";

// Enters a number and returns the selection screen's message.
QString Select(const QString& number) {
    Type(number + u'\n');
    return Text("frmSelect", "lbl1");
}

/// Counts the timer events of 200 milliseconds.
int TimerEvents() {
    struct : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            Count += event->type() == QEvent::Timer ? 1 : 0;
            return false;
        }
        int Count = 0;
    } counter;
    qApp->installEventFilter(&counter);
    QTest::qWait(200);
    return counter.Count;
}

void BeginGame(Sitting& sitting) {
    EXPECT_EQ(Desktop(), "Vorlund");
    EXPECT_EQ(Click("frm1", "lblPlay"), "Vorlund - New Game");
    Click("frm2", "opt4");
    Click("frm2", "lblCont");
    Click("frm2", "cmp(0)");
    Click("frm2", "cmp(0)");
    Click("frm2", "cmp(1)");
    EXPECT_EQ(Text("frm2", "txtN(0)") + u'|' + Text("frm2", "txtN(1)"), "|Computer");
    EXPECT_FALSE(Control("frm2", "txtN(1)").isEnabled());
    Fill("frm2", "txtN(2)", "cOmP\n");
    EXPECT_EQ(Text("frm2", "lbl1"), "Enter a name for Player 4.");
    EXPECT_EQ(Beeps(), 2);  // one for Player 1, too
    EXPECT_EQ(Text("frm2", "txtN(4)"), "(not seen)");
    sitting.Expect({Terminate + "Press 'Yes' to exit or 'No' to return.", "n"});
    Close("frm2");
    Fill("frm2", "txtN(0)", "Anna");
    Fill("frm2", "txtN(3)", "Benjamin the Great");
    Click("frm2", "lblCont");
    Window("frmSelect");
    EXPECT_EQ(Desktop(), "Vorlund [] | Vorlund - Territory Select");
    EXPECT_EQ(Text("frmSelect", "lbl1"), "Player 1, Anna, has been chosen to select first.");
    EXPECT_EQ(Select("43"), "Invalid territory selection.\nPlayer 1, Anna, select again.");
    EXPECT_EQ(Beeps(), 1);
    sitting.Expect({Terminate + "Press 'yes' to exit or 'no' to return.", "n"});
    Close("frmSelect");
    EXPECT_EQ(Select("7"), "Player 1 selected Midwest USA\nPlayer 4, Benjamin the, select a territory.");
    EXPECT_EQ(MapFault(sitting.Game()), "");
    Fill("frmSelect", "txtNum", "180");  // the field takes two digits
    Click("frmSelect", "lblGo");
}

TEST(Game, FromTheTitleThroughTheFirstRoundsToASavedGame) {
    const QTemporaryDir saves;
    GameState saved;
    {
        Sitting sitting(std::make_unique<SeededRandom>(7), saves.path());
        BeginGame(sitting);
        EXPECT_EQ(Desktop(), "Vorlund - Anna's turn [] | Vorlund - Upkeep");
        EXPECT_EQ(ReportText(),
                  "Upkeep status for Player 1, Anna.\n"
                  "Upkeep for Troops and Factories: $21\nUpkeep for Tanks: 0 barrels\n\n"
                  "Money collected from territories: $43\nRemaining money after expenses: $22\n\n");
        Click("frmReport", "lblCont");
        Type("a");  // nobody attacks in their first turn
        EXPECT_EQ(Desktop(), "Vorlund - Anna's turn [bsrutev]");
        EXPECT_EQ(Click("frm3", "lblEndTurn"),
                  "Vorlund - CompPlayer2's turn [] | Computer player CompPlayer2's status");
        EXPECT_EQ(ReportText(),
                  "[Player 2] The computer did the following:\n"
                  "Moved forces into Colombian Territory.\nMoved forces into Caribbean.\n");
        EXPECT_EQ(MapFault(sitting.Game()), "");
        Press(Qt::Key_Escape);
        EXPECT_EQ(ReportText(),
                  "[Player 3] The computer did the following:\n"
                  "Moved forces into Northern Russia.\nMoved forces into Western Russia.\n");
        EXPECT_EQ(Close("frmReport"), "Vorlund - Benjamin the's turn [] | Vorlund - Upkeep");
        EXPECT_TRUE(ReportText().startsWith("[Player 4] Upkeep status for Player 4, Benjamin the."));
        Press(Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_EQ(Type("E\n"), "Vorlund - Anna's turn [bsrautev]");

        Type("b7\t1\t\t3\n");
        EXPECT_EQ(ReportText(),
                  "Details on current transaction:\nYou bought 1 Troops for $10 in Midwest USA.\n"
                  "You bought 3 oil barrels for $1.\n\n        Total spent: $11");
        EXPECT_EQ(Type("\nS7\t2\n\nt"), "Vorlund - Anna's turn [] | Vorlund - Player 1 status");
        Type("\nv My Game");
        sitting.Expect({"Information: Game 'my game.vrs' properly saved."});
        Type("\n");
        const QString again = "NoIcon: Saved game already exists...\nWould you like to overwrite this file?";
        sitting.Expect({again, "n"});
        sitting.Expect({"Information: Game not saved...\nChoose a different name and try again."});
        Type("vMY GAME\n");
        sitting.Expect({again, "y"});
        sitting.Expect({"Information: Game 'my game.vrs' properly saved."});
        Type("\n");
        EXPECT_EQ(QDir(saves.path()).entryList(QDir::Files | QDir::Hidden), QStringList("my game.vrs"));
        saved = sitting.Game();
        sitting.Expect({LeaveQuestion, "n"});
        Close("frm3");
        sitting.Expect({LeaveQuestion, "y"});
        EXPECT_EQ(sitting.Heard(), "Beep");
        EXPECT_TRUE(EndsProgram([] { Close("frm3"); }));
    }
    Sitting sitting(std::make_unique<NoLuck>(), saves.path());
    EXPECT_EQ(Click("frm1", "lblLoad"), "Vorlund - Load Game");
    EXPECT_EQ(Type("my\n"), "Vorlund - Anna's turn [bsrautev]");
    saved.GameLoaded = true;
    EXPECT_TRUE(sitting.Game() == saved);
    EXPECT_EQ(MapFault(saved), "");
}

TEST(Game, FromASavedGameToTheEnd) {
    Sitting sitting(std::make_unique<ScriptedRandom>("2/12 11/12 2/12 2/12"));
    sitting.Resume(NewGame(2, "7 Anna 10/2F; 8 Ben 2/0; 9 Ben 2/0; Anna Money 1000 HasNuke 1"));
    Type("r7\t6\t2\n");
    EXPECT_EQ(Text("frmTransport", "lblA"), "Move to Western USA was successful.");
    Type("\t1\n");  // the focus is still in the field for troops
    EXPECT_FALSE(Control("frmTransport", "lblGo").isEnabled());
    EXPECT_EQ(Beeps(), 0);
    Type("1\n");
    EXPECT_EQ(Beeps(), 1);
    EXPECT_EQ(Text("frm3", "lblCntry(5)"), "2/1");
    Press(Qt::Key_Escape);

    Type("u");
    Click("frmUpgrade", "lblGo1");
    EXPECT_EQ(Text("frmUpgrade", "lblTop"), "Level 1 Economy upgrade complete.\nYou have $850 to spend.");
    EXPECT_EQ(Text("frmUpgrade", "lbl1"), "Current Economy upgrade: 1\nNext upgrade cost: $300");
    Type("6\n\t6\n");
    EXPECT_EQ(Text("frmUpgrade", "lblTop"), "Defense built in Western USA.\nYou have $570 to spend.");
    EXPECT_EQ(Entries(), "|");
    EXPECT_EQ(MapFault(sitting.Game()), "");
    Press(Qt::Key_Escape);

    Type("a");
    EXPECT_EQ(Text("frmAttack", "lblA"), "You have 2 attacks left this turn.");
    Fill("frmAttack", "txtN", "9");
    Click("frmAttack", "lblStrike");
    EXPECT_EQ(ReportText(),
              "Your nuclear attack upon Mexico was successful.\n"
              "Casualties for Player 2, Ben:\n        Troops: 1\n        Tanks: 0\n\n");
    EXPECT_EQ(Text("frm3", "lblCntry(8)"), "1/0");
    constexpr QRect easternUsa(150, 110, 40, 20);
    const auto land = [&] { return Window("frm3").grab(easternUsa).toImage(); };
    const QImage before = land();
    EXPECT_EQ(Type("\na7\t8\t5\n"), "Vorlund - Anna's turn [bsrautev] | Vorlund - Battle Results");
    EXPECT_EQ(ReportText(),
              "The battle was successful... you now have control of Eastern USA.\n"
              "Casualties for attacker (Player 1, Anna):\n        Troops: 1\n        Tanks: 0\n\n"
              "Casualties for defender (Player 2, Ben):\n        Troops: 2\n        Tanks: 0\n\n");
    EXPECT_NE(land(), before);
    EXPECT_EQ(MapFault(sitting.Game()), "");
    Type("\na\t\t\t\t9\n");
    EXPECT_EQ(Beeps(), 1);  // no bomb left
    Fill("frmAttack", "txtC1", "7\t9\t2\n");
    EXPECT_TRUE(ReportText().endsWith("Player 2 is now dead."));
    Type("\na");
    EXPECT_FALSE(Control("frmAttack", "lblAttack").isEnabled());
    Press(Qt::Key_Escape);
    EXPECT_EQ(Text("frm3", "imgGameOver"), "(not seen)");
    sitting.Expect({"Warning: Player 1, Anna, you win the game!"});
    EXPECT_EQ(Type("e"), "Vorlund - Anna wins []");
    EXPECT_EQ(Control("frm3", "imgGameOver").accessibleName(), "Game over");
    ShowTooltip("frm3", easternUsa.center());
    EXPECT_FALSE(QToolTip::isVisible());
    EXPECT_EQ(sitting.Heard(), "Beep Explode Gun Gun");
    EXPECT_TRUE(EndsProgram([] { Close("frm3"); }));
}

TEST(Game, TheTitleIsDraggedByTheLeftButton) {
    Sitting sitting;
    QWidget& title = Window("frm1");
    if (QGuiApplication::platformName() == "wayland" || title.windowHandle()->startSystemMove()) {
        GTEST_SKIP() << "the window manager moves the windows";
    }
    const QPoint before = title.pos();
    for (const auto button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mousePress(title.windowHandle(), button, {}, {10, 10});
        QTest::mouseMove(title.windowHandle(), {40, 30});
        EXPECT_EQ(title.pos(), before);
        QTest::mouseRelease(title.windowHandle(), button, {}, {10, 10});
    }
    QTest::mousePress(title.windowHandle(), Qt::LeftButton, {}, {10, 10});
    QTest::mouseMove(title.windowHandle(), {40, 30});
    EXPECT_EQ(title.pos() - before, QPoint(30, 20));
    QTest::mouseRelease(title.windowHandle(), Qt::LeftButton, {}, {10, 10});
    QTest::mouseMove(title.windowHandle(), {50, 50});
    EXPECT_EQ(title.pos() - before, QPoint(30, 20));
    EXPECT_TRUE(EndsProgram([] { Close("frm1"); }));
}

TEST(Sounds, TheMusicOnceAndAClickForEachCommandOfTheTitle) {
    Sitting sitting;
    const SoundRecorder& recorded = sitting.Recorded();
    Click("frm1", "lblLoad");  // the timers of the hidden title continue
    EXPECT_EQ(sitting.Heard(), "Beep");
    EXPECT_TRUE(QTest::qWaitFor([&] { return recorded.Music == 1; }));
    Click("frmLoad", "lblGo(2)");
    QTest::qWait(300);
    EXPECT_EQ(recorded.Music, 1);
    EXPECT_EQ(sitting.Heard(), "Beep");
    EXPECT_TRUE(QTest::qWaitFor([] { return Text("frm1", "lbl3").size() == 25; }));
    EXPECT_TRUE(QTest::qWaitFor([] { return TimerEvents() == 0; })) << "after the last credit";
    EXPECT_TRUE(EndsProgram([] { Click("frm1", "lblExit"); }));
    EXPECT_EQ(sitting.Heard(), "Beep Beep");
    Sitting left;
    Click("frm1", "lblPlay");
    const int before = left.Recorded().Music;
    QTest::qWait(300);
    EXPECT_EQ(left.Recorded().Music, before) << "the timers stop with the title";
    EXPECT_EQ(left.Heard(), "Beep");
}

TEST(Sounds, GunfireAndExplosionBeforeTheMapIsRedrawn) {
    Sitting sitting;
    sitting.Resume(NewGame(3, "7 Anna 30/1; 8 Ben 8/0; 6 Ben 1/0; 36 Cleo 5/0; Anna HasNuke 1"));
    QStringList seen;  // on the map when a sound starts
    sitting.Recorded().WhenPlayed = [&] {
        seen << Text("frm3", "lblCntry(6)") + ' ' + Text("frm3", "lblCntry(7)");
    };
    Type("a\t\t\t\t8\n");
    EXPECT_EQ(Text("frm3", "lblCntry(7)"), "4/0");
    Type("\na7\t8\t20\n");
    EXPECT_EQ(Text("frm3", "lblCntry(7)"), "20/0");
    EXPECT_EQ(seen.join(" | "), "30/1 8/0 | 30/1 4/0");
    EXPECT_EQ(sitting.Heard(), "Beep Explode Gun");
}

TEST(Sounds, NoneForRefusalsAndComputers) {
    Sitting sitting(std::make_unique<SeededRandom>(3));
    sitting.Resume(NewGame(3,
                           "7 Anna 1/0; 15 Anna 90/0; 8 Ben 99/0; 36 Cleo 5/0; Anna HasNuke 1; "
                           "Ben IsComputer 1 HasNuke 1"));
    sitting.Expect({"Warning: Enter a number for either troops or tanks."});
    Type("a7\t8\n");
    sitting.Expect({"Warning: The country number must be 1-42."});
    Type("\t\t\t43\n\033e");
    EXPECT_TRUE(ReportText().contains("was nuked") && ReportText().contains("Attack on Midwest USA"));
    EXPECT_EQ(sitting.Heard(), "Beep");
}

}  // namespace
}  // namespace vorlund
