// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QHelpEvent>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>
#include <QWindow>
#include <cerrno>
#include <system_error>

#include "tests/rules/small_worlds.h"
#include "tests/screens/hands.h"
#include "ui/windows/frmReport.h"
#include "ui/windows/game_navigation.h"

// What single controls do: the Tab key, the fields under the map, tooltips, the report's text, the saved
// games.

namespace vorlund {
namespace {

constexpr QPoint Atlantic(250, 200);

QPoint MarkerOf(std::size_t number) {
    return {World[number - 1].MapX, World[number - 1].MapY};
}

GameState AnnaAndBen(const std::string& more = "") {
    GameState game = NewGame(2, "7 Anna 12/1F; 16 Ben 1/0D; Anna Money 1000" + more);
    game.PlayerAt(0).Name = "<b>Anna[*]";
    return game;
}

// Where Tab leads until it comes round; "?" behind a name when nobody sees that the keyboard is there.
QString Tabs() {
    QStringList stops;
    const auto focus = [] { return QApplication::focusWidget(); };
    Keyboard();
    while (QTest::qWaitFor([&] { return focus() != nullptr; }) && !stops.contains(focus()->objectName()) &&
           stops.size() < 12) {
        const QWidget& here = *focus();
        const QRect around = here.geometry().adjusted(-3, -3, 3, 3);
        const QImage with = here.window()->grab(around).toImage();
        stops << here.objectName();
        Press(Qt::Key_Tab);
        const bool seen = here.isWindow() || here.window()->grab(around).toImage() != with;
        stops.back() += seen ? "" : "?";
    }
    return stops.join(' ');
}

QString Reason(int error) {
    return QString::fromLocal8Bit(std::generic_category().message(error)) + ".";
}

TEST(Controls, TheTabKeyLeadsToEverything) {
    {
        Sitting title;
        EXPECT_EQ(Tabs(), "lblPlay lblLoad lblExit");
        Press(Qt::Key_Down);
        Type("\n");
        EXPECT_EQ(Tabs(), "flb1 lblGo(0) lblGo(1) lblGo(2)");
    }
    {
        Sitting newGame;
        Type(" ");
        EXPECT_EQ(Tabs(), "opt2 lblCont");
        Press(Qt::Key_Down);
        EXPECT_TRUE(static_cast<CommandLabel&>(Control("frm2", "opt3")).isChecked());
        Press(Qt::Key_Up);
        Type("\n");
        EXPECT_EQ(Tabs(), "txtN(0) cmp(0) txtN(1) cmp(1) lblCont");
        Type("Anna\t\t\t \t\n");
        Window("frmSelect");
    }
    Sitting sitting;
    sitting.Resume(AnnaAndBen());
    EXPECT_EQ(Tabs(), "frm3 lblBuy lblSell lblTransport lblAttack lblUpgrade lblStatus lblEndTurn lblSave");
    const std::vector<std::pair<QString, QString>> rows{{"b", "txtC1 txtTroops txtTanks txtOil"},
                                                        {"s", "txtC1 txtTroops txtTanks txtOil"},
                                                        {"r", "txtC1 txtC2 txtTroops txtTanks"},
                                                        {"a", "txtC1 txtC2 txtTroops txtTanks txtN"},
                                                        {"u", "txtC1 txtC2"}};
    for (const auto& [key, fields] : rows) {
        Type(key);
        EXPECT_EQ(Tabs(), fields);
        Type("\033");
    }
    Type("\t\n");  // on a command, Enter runs it
    EXPECT_EQ(Desktop(), "Vorlund - <b>Anna[*]'s turn [] | Vorlund - Buy");
    Type("\033u");
    Press(Qt::Key_3, Qt::AltModifier);
    EXPECT_EQ(sitting.Game().PlayerAt(0).NuclearLevel, 1);
}

TEST(Controls, AReportScrollsAndTheNextBeginsAtItsTop) {
    Sitting sitting;
    struct : GameNavigation {
        void SelectTerritories() override {}
        void BeginFirstTurn() override {}
        void RunCommand(Command) override {}
        bool ReportClosed() override { return false; }
        void End() override {}
    } navigation;
    frmReport screen(navigation);
    const Report report{"Vorlund - Buy", "Forty lines", QString("line\r").repeated(40).toStdString()};
    screen.ShowReport(report, nullptr, nullptr);
    const auto bars = screen.findChildren<QScrollBar*>();
    const auto& bar = **std::find_if(bars.begin(), bars.end(), [](auto* b) { return b->maximum() > 0; });
    const int page = bar.pageStep();
    for (const auto& [key, place] : {std::pair(Qt::Key_Down, bar.singleStep()),
                                     {Qt::Key_PageDown, bar.singleStep() + page},
                                     {Qt::Key_Up, page},
                                     {Qt::Key_PageUp, 0},
                                     {Qt::Key_End, bar.maximum()}}) {
        Press(key);
        EXPECT_EQ(bar.value(), place) << key;
    }
    screen.ShowReport(report, nullptr, nullptr);
    EXPECT_EQ(bar.value(), 0);
}

TEST(Controls, EveryReportComesOverTheBoardWithContinueAtRest) {
    Sitting sitting;
    sitting.Resume(AnnaAndBen());
    const auto middle = [](const char* window) { return Window(window).frameGeometry().center().x(); };
    Window("frm3").move(Window("frm3").pos() - QPoint(20, 90));  // not in the middle of the desktop
    Type("b7\t1\n");
    const QImage rest = Control("frmReport", "lblCont").grab().toImage();
    EXPECT_NEAR(middle("frmReport"), middle("frm3"), 4);
    PointAt("frmReport", Control("frmReport", "lblCont").geometry().center());
    EXPECT_NE(Control("frmReport", "lblCont").grab().toImage(), rest);
    Click("frm3", "lblEndTurn");
    EXPECT_EQ(Control("frmReport", "lblCont").grab().toImage(), rest);
}

TEST(Controls, WhatTakesTheCommandsFromTheBoardCannotBeMinimised) {
    Sitting sitting;
    sitting.Resume(AnnaAndBen());
    for (const char* keys : {"b", "s", "r", "a", "u", "t", "v", "e"}) {
        Type(keys);
        EXPECT_FALSE(Keyboard().flags() & Qt::WindowMinimizeButtonHint) << keys;
        Type("\033");
    }
}

TEST(Controls, AClickOnTheMapTypesTheNumber) {
    const std::vector<std::array<QString, 3>> rows{{"b", "txtC1", "txtC1"},  {"s\t", "txtC1", "txtC1"},
                                                   {"r", "txtC1", "txtC2"},  {"r\t\t\t", "txtC2", "txtC2"},
                                                   {"a", "txtC1", "txtC2"},  {"a\t\t\t\t", "txtN", "txtN"},
                                                   {"u\t", "txtC2", "txtC2"}};
    Sitting sitting;
    sitting.Resume(AnnaAndBen());
    for (const auto& [keys, field, next] : rows) {
        Type(keys);
        const QWidget& dialog = *QWidget::find(Keyboard().winId());
        for (const QPoint place : {MarkerOf(35), Atlantic}) {  // in the sea there is nothing
            Click("frm3", place);
            EXPECT_EQ(Text(dialog.objectName(), field), "35") << keys.toStdString();
            EXPECT_EQ(dialog.focusWidget()->objectName(), next) << keys.toStdString();
        }
        Type("\033");
    }
}

TEST(Controls, TooltipsTellOfTerritoriesAndCommands) {
    Sitting sitting;
    sitting.Resume(AnnaAndBen(" FirstTurn 1 MovesLeft 0"));
    const std::vector<std::pair<QPoint, QString>> rows{
        {MarkerOf(7),
         "7 Midwest USA\n&lt;b&gt;Anna[*] (Player 1), 12 troops, 1 tank, factory\nValue 7, oil field\n"
         "Neighbours: 2 Vancouver Territory, 3 Montreal Territory, 6 Western USA,\n8 Eastern USA, 9 Mexico"},
        {MarkerOf(16),
         "16 England\nBen (Player 2), 1 troop, 0 tanks, defense\nValue 6\n"
         "Neighbours: 5 Greenland, 18 French Territory"},
        {MarkerOf(35), "35 Japan\nheld by nobody\nValue 7\nNeighbours: 34 Manchurian Territory"}};
    QWidget& board = Window("frm3");
    for (const auto& [place, text] : rows) {
        QHelpEvent rest(QEvent::ToolTip, place, board.mapToGlobal(place));
        QApplication::sendEvent(&board, &rest);
        EXPECT_EQ(QToolTip::text(), "<p style='white-space:pre'>" + text + "</p>");
    }
    QHelpEvent rest(QEvent::ToolTip, Atlantic, board.mapToGlobal(Atlantic));
    QApplication::sendEvent(&board, &rest);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    EXPECT_EQ(Control("frm3", "lblBuy").toolTip(), "Key: B");
    EXPECT_EQ(Control("frm3", "lblAttack").toolTip(), "Nobody attacks in their first turn.");
    Type("r");
    EXPECT_EQ(Control("frm3", "lblBuy").toolTip(), "Another window wants to be closed first.");
    EXPECT_EQ(Control("frmTransport", "lblGo").toolTip(), "You have no move left this turn.");
}

TEST(Controls, SavedGamesAreListedDeletedAndRefused) {
    Sitting sitting;
    for (const char* file : {"Beta.vrs", "alpha.vrs", "gamma.vrs"}) {
        sitting.Put(file, AnnaAndBen());
    }
    QFile bad(sitting.Saves() + "/alpha.vrs");
    EXPECT_TRUE(bad.open(QIODevice::ReadWrite) && bad.write(" 7 ") == 3);
    bad.close();
    Click("frm1", "lblLoad");
    const auto listed = [] {
        QStringList files;
        for (const auto* item :
             static_cast<QListWidget&>(Control("frmLoad", "flb1")).findItems(".", Qt::MatchContains)) {
            files << item->text();
        }
        return files.join(' ');
    };
    EXPECT_EQ(listed(), "alpha.vrs Beta.vrs gamma.vrs");
    Click("frmLoad", "lblGo(0)");  // without a selection nothing happens
    Click("frmLoad", "lblGo(1)");
    const QString question = "NoIcon: Confirm Delete: Are you sure you want to delete the game Beta.vrs?";
    sitting.Expect({question, "n"});
    sitting.Expect({question, "y"});
    Type("b");
    Click("frmLoad", "lblGo(1)");
    Press(Qt::Key_Delete);
    EXPECT_EQ(listed(), "alpha.vrs gamma.vrs");
    sitting.Expect(
        {"Warning: The game 'alpha.vrs' could not be loaded.\n"
         "Line 1: NumPlayers of the game must be a whole number from 2 to 5."});
    Press(Qt::Key_Down);
    Type("\n");
    EXPECT_TRUE(QFile::remove(sitting.Saves() + "/gamma.vrs"));
    Press(Qt::Key_Down);
    Type("\n");  // nothing either: it has gone
    EXPECT_EQ(Desktop(), "Vorlund - Load Game");
    Click("frmLoad", "lblGo(2)");
    EXPECT_EQ(Desktop(), "Vorlund");
}

TEST(Controls, SavingSaysWhatHasBecomeOfTheGame) {
    Sitting sitting;
    sitting.Resume(AnnaAndBen());
    EXPECT_TRUE(QDir(sitting.Saves()).mkdir("a.vrs"));
    sitting.Expect({"Warning: The game 'a.vrs' could not be saved.\nThere is a folder of that name."});
    Type("va\n");
    EXPECT_EQ(Text("frmSave", "txtSave"), "a");
    SystemCalls calls = RealSystemCalls();
    const auto fails = [](const auto&) {
        errno = EIO;
        return -1;
    };
    calls.OpenFolder = fails;
    calls.SyncFileSystem = fails;
    sitting.Folder() = SavedGamesFolder(sitting.Saves().toStdString(), calls);
    sitting.Expect(
        {"Warning: Game 'ab.vrs' saved, but a power cut now could still lose it.\n" + Reason(EIO)});
    Type("b\n");
    EXPECT_EQ(Desktop(), "Vorlund - <b>Anna[*]'s turn [bsrautev]");
}

TEST(Controls, AFolderThatCannotBeListedIsNotTakenForAnEmptyOne) {
    Sitting sitting;
    sitting.Folder() = SavedGamesFolder("/dev/null");
    sitting.Expect({"Warning: The saved games could not be listed.\n" + Reason(ENOTDIR)});
    Click("frm1", "lblLoad");
    Click("frmLoad", "lblGo(2)");
    EXPECT_EQ(Desktop(), "Vorlund");
}

TEST(Controls, ACharacterThatTheFieldCutsInHalfIsRefused) {
    QGuiApplication::clipboard()->setText("eleven char\U0001F600");  // the last one takes two places
    {
        Sitting game;
        game.Resume(AnnaAndBen());
        Type("v");
        Press(Qt::Key_V, Qt::ControlModifier);
        game.Expect({"Warning: A character of the game name was cut in half.\nEnter the name again."});
        Type("\n");
    }
    Sitting newGame;
    Type(" \n");
    Press(Qt::Key_V, Qt::ControlModifier);
    Type("\t\tBen\n");
    EXPECT_EQ(Text("frm2", "lbl1"), "Player 1's name cannot be saved; enter another.");
}

TEST(Controls, ADoubleClickLoadsWhenTheButtonIsLetGo) {
    Sitting sitting;
    sitting.Put("a.vrs", AnnaAndBen());
    Click("frm1", "lblLoad");
    auto& list = static_cast<QListWidget&>(Control("frmLoad", "flb1"));
    QWidget* view = list.viewport();
    const QPoint place = list.visualItemRect(list.item(0)).center();
    QTest::mouseClick(view, Qt::LeftButton, {}, place);
    QTest::mouseDClick(view, Qt::LeftButton, {}, place);
    EXPECT_EQ(Desktop(), "Vorlund - Load Game");
    QTest::mouseRelease(view, Qt::LeftButton, {}, place);
    EXPECT_EQ(Desktop(), "Vorlund - <b>Anna[*]'s turn [bsrautev]");
}

TEST(Controls, ClosingTheFirstScreensEndsTheProgram) {
    const QString terminate = "NoIcon: Closing this window will terminate your new game.\n";
    for (const QString window : {"frm2", "frmSelect"}) {
        Sitting sitting;
        Type(window == "frm2" ? " " : " \nAnna\t\tBen\n");
        Window(window);
        sitting.Expect({terminate + (window == "frm2" ? "Press 'Yes' to exit or 'No' to return."
                                                      : "Press 'yes' to exit or 'no' to return."),
                        "y"});
        EXPECT_TRUE(Ends([&] { Close(window); })) << window.toStdString();
    }
    const Sitting sitting;
    EXPECT_TRUE(Ends([] { Click("frm1", "lblExit"); }));
}

}  // namespace
}  // namespace vorlund
