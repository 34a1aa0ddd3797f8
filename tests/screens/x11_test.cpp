// SPDX-License-Identifier: MIT
#include <QProcess>
#include <QTest>
#include <QWindow>

#include "tests/engine/seeded_random.h"
#include "tests/screens/driver.h"

// What needs an X server and a window manager: its key repeats and modifiers, double clicks over two windows,
// window frames and icons.

namespace vorlund {
namespace {

/// Runs a program to its end while the event loop goes on; returns what it printed.
QString Output(const QString& program, const QString& arguments) {
    QProcess process;
    process.start(program, arguments.split(' '));
    EXPECT_TRUE(QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 20000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

QString Keys(const QString& commands) {
    FrontWindow();
    Output("xdotool", commands);
    QTest::qWait(200);
    return Desktop();
}

/// Holds a key for longer than it takes to repeat.
QString Hold(const QString& key) {
    return Keys("keydown " + key + " sleep 2 keyup " + key);
}

QString Mouse(QPoint place, const QString& commands) {
    Output("xdotool", QString("mousemove %1 %2 %3").arg(place.x()).arg(place.y()).arg(commands));
    QTest::qWait(200);
    return Desktop();
}

QPoint On(const QString& window, const QString& control) {
    const QWidget& target = Control(window, control);
    return target.mapToGlobal(target.rect().center());
}

TEST(OnX, AHeldKeyActsOnce) {
    {
        Sitting sitting;
        sitting.Resume(ThreePlayers);
        Hold("v");
        EXPECT_EQ(Text("frmSave", "txtSave"), "");
        Hold("x");
        EXPECT_GT(Text("frmSave", "txtSave").size(), 3);
        EXPECT_EQ(Hold("Escape"), AnnasTurn);
        Type("u");
        Keys("keydown alt keydown 1 sleep 1.2 keyup 1 keyup alt");
        EXPECT_EQ(sitting.Game().PlayerAt(0).EconomyLevel, 1);
    }
    Sitting sitting(std::make_unique<SeededRandom>(3));
    sitting.Resume(
        NewGame(5,
                "7 Anna 10/1; 16 Ben 2/0; 36 Cleo 5/0; 40 Dora 5/0; 14 Emil 3/0; Ben IsComputer 1; "
                "Cleo IsComputer 1; Dora IsComputer 1; Emil IsComputer 1"));
    EXPECT_EQ(Type("e"), "Vorlund - Ben's turn [] | Computer player Ben's status");
    EXPECT_EQ(Hold("Return"), "Vorlund - Cleo's turn [] | Computer player Cleo's status");
}

TEST(OnX, LettersRunCommandsWithoutModifiersOrWithShift) {
    Sitting sitting;
    sitting.Resume(ThreePlayers);
    for (const QString modifier : {"super", "alt", "ctrl", "ISO_Level3_Shift"}) {
        EXPECT_EQ(Keys("key " + modifier + "+b"), AnnasTurn) << modifier.toStdString();
    }
    EXPECT_EQ(Keys("key shift+b"), AnnasDisabledBoard + "Vorlund - Buy");
}

TEST(OnX, ADoubleClickOnBuyDoesNotEndTheTurn) {
    Sitting sitting;
    sitting.Resume(ThreePlayers);
    Type("b7\t1");
    QWidget& dialog = Window("frmBuy");
    dialog.move(dialog.pos() + On("frm3", "lblEndTurn") - On("frmBuy", "lblGo"));
    EXPECT_TRUE(QTest::qWaitFor([] { return On("frmBuy", "lblGo") == On("frm3", "lblEndTurn"); }));
    EXPECT_EQ(Mouse(On("frmBuy", "lblGo"), "click --repeat 2 --delay 150 1"), AnnasTurn + " | Vorlund - Buy");
    EXPECT_EQ(sitting.Game().PlayerAt(0).Money, 990);
    EXPECT_EQ(Mouse(On("frm3", "lblEndTurn"), "sleep 0.6 click 1"),
              "Vorlund - Ben's turn [] | Vorlund - Upkeep");
}

TEST(OnX, EachReportIsPlacedBelowTheBoard) {
    Sitting sitting;
    sitting.Resume(ThreePlayers);
    FrontWindow();
    QTest::qWait(300);  // until the board has its frame
    for (int report = 0; report < 3; ++report) {
        Type("b7\t1\n");
        QTest::qWait(300);
        const QRect board = Window("frm3").frameGeometry();
        const QRect place = Window("frmReport").frameGeometry();
        EXPECT_NEAR(place.center().x(), board.center().x(), 4);
        EXPECT_NEAR(place.top(), board.bottom() + 1, 4);
        Type("\n");
    }
}

TEST(OnX, WindowsHaveTheIcon) {
    QProcess program;
    program.start(VORLUND_PROGRAM, {});
    const QString window = Output("xdotool", "search --sync --onlyvisible --name ^Vorlund$").trimmed();
    const QString properties = Output("xprop", "-id " + window + " _NET_WM_ICON");
    for (const char* size : {"16 x 16", "48 x 48", "128 x 128"}) {
        EXPECT_TRUE(properties.contains(size)) << size;
    }
    program.kill();
    program.waitForFinished();
}

}  // namespace
}  // namespace vorlund
