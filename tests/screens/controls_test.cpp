// SPDX-License-Identifier: MIT
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>
#include <QToolTip>
#include <QWindow>
#include <cerrno>
#include <system_error>

#include "tests/rules/small_worlds.h"
#include "tests/screens/driver.h"
#include "ui/parts/accessible.h"
#include "ui/windows/frmReport.h"
#include "ui/windows/game_navigation.h"

// Single controls and windows: tab order, territory fields, tooltips, scrolling, loading and saving.

namespace vorlund {
namespace {

const QString BoardTitle = "Vorlund - <b>Anna[*]'s turn [bsrautev]";
constexpr QPoint Atlantic(250, 200);

QPoint MarkerOf(std::size_t number) {
    return {World[number - 1].MapX, World[number - 1].MapY};
}

GameState AnnaAndBen(const std::string& more = "") {
    GameState game = NewGame(2, "7 Anna 12/1F; 16 Ben 1/0D; Anna Money 1000" + more);
    game.PlayerAt(0).Name = "<b>Anna[*]";
    return game;
}

// The tab order from the focus widget on; "?" after a name if nothing is painted for its focus.
QString Tabs() {
    QStringList stops;
    const auto focus = [] { return QApplication::focusWidget(); };
    FrontWindow();
    while (QTest::qWaitFor([&] { return focus() != nullptr; }) && !stops.contains(focus()->objectName()) &&
           stops.size() < 20) {
        const QWidget& here = *focus();
        const QRect around = here.geometry().adjusted(-3, -3, 3, 3);
        const QImage focused = here.window()->grab(around).toImage();
        stops << here.objectName();
        Press(Qt::Key_Tab);
        const bool seen = here.isWindow() || here.window()->grab(around).toImage() != focused;
        stops.back() += seen ? "" : "?";
    }
    return stops.join(' ');
}

QString Reason(int error) {
    return QString::fromLocal8Bit(std::generic_category().message(error)) + ".";
}

TEST(Controls, TabOrderOfEveryWindow) {
    {
        Sitting title;
        EXPECT_EQ(Tabs(), "lblPlay lblLoad lblExit");
        Press(Qt::Key_Down);
        Type("\n");
        EXPECT_EQ(Tabs(), "flb1 lblGo(2)");  // nothing is selected
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
    sitting.Resume(AnnaAndBen(" NuclearLevel 2"));
    EXPECT_EQ(Tabs(),
              "frm3 lblBuy lblSell lblTransport lblAttack lblUpgrade lblStatus lblEndTurn lblSave "
              "spot(0) player(0) player(1) treasury(0) treasury(1) treasury(2) treasury(3) treasury(4)");
    for (const auto& [key, stops] :
         {std::pair("b", "txtC1 txtTroops txtTanks txtOil lblGo"),
          {"s", "txtC1 txtTroops txtTanks txtOil lblGo"},
          {"r", "txtC1 txtC2 txtTroops txtTanks lblGo"},
          {"a", "txtC1 txtC2 txtTroops txtTanks txtN lblAttack"},
          {"u", "txtC1 txtC2 lblGo1 lblGo2 lblGo3 lblGo4 lblGo5"},
          {"v", "txtSave lblGo"},
          {"t",
           "lblName lblMoney lblOil lblTroops lblTanks lblFact lblDebt lblEco lblWar lblNuc lblAM "
           "lblUpkeep lblCont"}}) {
        Type(key);
        EXPECT_EQ(Tabs(), stops);
        Type("\033");
    }
    Type("t");
    Press(Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "lblMoney");
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    EXPECT_EQ(Type(" "), "Vorlund - <b>Anna[*]'s turn [bsrautev]") << "Space on Close";
    EXPECT_EQ(Type("\t\n"), "Vorlund - <b>Anna[*]'s turn [] | Vorlund - Buy") << "Enter on a command";
    Type("\033u");
    Press(Qt::Key_3, Qt::AltModifier);
    EXPECT_EQ(sitting.Game().PlayerAt(0).NuclearLevel, 3);
    EXPECT_FALSE(Control("frmUpgrade", "lblGo3").isEnabled());
}

TEST(Controls, ReportsScrollByKeysAndStartAtTheTop) {
    DescribeScreensToAssistiveTechnology();
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
    for (const auto& [key, position] : {std::pair(Qt::Key_Down, bar.singleStep()),
                                        {Qt::Key_PageDown, bar.singleStep() + page},
                                        {Qt::Key_Up, page},
                                        {Qt::Key_PageUp, 0},
                                        {Qt::Key_End, bar.maximum()},
                                        {Qt::Key_Home, 0},
                                        {Qt::Key_End, bar.maximum()}}) {
        Press(key);
        EXPECT_EQ(bar.value(), position) << key;
    }
    screen.ShowReport(report, nullptr, nullptr);
    EXPECT_EQ(bar.value(), 0);
    QAccessibleInterface& alert = *QAccessible::queryAccessibleInterface(&screen);
    EXPECT_EQ(alert.role(), QAccessible::AlertMessage);
    EXPECT_EQ(alert.text(QAccessible::Name), "Forty lines");
}

void ExpectBelowBoard(const QString& name) {
    constexpr int titleBar = 30;  // a window manager may add it late
    const QRect board = Window("frm3").frameGeometry();
    const auto centred = [&] {
        return std::abs(Window(name).frameGeometry().center().x() - board.center().x()) <= 4;
    };
    EXPECT_TRUE(QTest::qWaitFor(centred)) << name.toStdString();
    const QRect window = Window(name).frameGeometry();
    const int lowest = Window("frm3").screen()->availableGeometry().bottom() - window.height();
    EXPECT_NEAR(window.top(), std::min(lowest, board.bottom()), titleBar) << name.toStdString();
}

TEST(Controls, PlacesOfDialogsAndReports) {
    Sitting sitting;
    sitting.Resume(AnnaAndBen());
    QWidget& board = Window("frm3");
    board.move(board.pos() - QPoint(20, -8));  // not in the middle of the desktop
    QTest::qWait(500);                         // for the window manager
    for (const auto& [keys, window] : {std::pair("b", "frmBuy"), {"t", "frmStatus"}}) {
        Type(keys);
        ExpectBelowBoard(window);
        Type("\033");
    }
    Type("b7\t1\n");
    ExpectBelowBoard("frmReport");
    const auto reportPlace = [] { return Window("frmReport").pos(); };
    Window("frmReport").move(30, 30);
    QTest::qWait(200);  // for the window manager
    const QPoint moved = reportPlace();
    Click("frm3", "lblBuy");
    Type("7\t1\n");
    EXPECT_EQ(reportPlace(), moved) << "replaced while visible";
    Click("frm3", "lblEndTurn");
    EXPECT_NE(reportPlace(), moved) << "hidden and shown again";
}

TEST(Controls, DialogsAndReportsHaveNoMinimiseButton) {
    Sitting sitting;
    sitting.Resume(AnnaAndBen());
    for (const char* keys : {"b", "s", "r", "a", "u", "t", "v", "e"}) {
        Type(keys);
        EXPECT_FALSE(FrontWindow().flags() & Qt::WindowMinimizeButtonHint) << keys;
        Type("\033");
    }
}

TEST(Controls, TheTerritorySelectionIsPlacedBelowTheBoardAndTakesClicksOnTheMap) {
    Sitting sitting;
    Type(" \nAnna\t\tBen\n");
    ExpectBelowBoard("frmSelect");
    FrontWindow();
    Window("frm3").activateWindow();
    Click("frm3", MarkerOf(35));
    EXPECT_EQ(Text("frmSelect", "txtNum"), "35");
    EXPECT_EQ(QGuiApplication::focusWindow(), Window("frmSelect").windowHandle());
}

TEST(Controls, TooltipsOfTerritoriesAndCommands) {
    Sitting sitting;
    sitting.Resume(AnnaAndBen(" FirstTurn 1 MovesLeft 0"));
    const std::vector<std::pair<QPoint, QString>> rows{
        {MarkerOf(7),
         "7 Midwest USA\n&lt;b&gt;Anna[*] (Player 1), 12 troops, 1 tank, factory\nPays $43 a turn, oil "
         "field\n"
         "Neighbours: 2 Vancouver Territory, 3 Montreal Territory, 6 Western USA,\n8 Eastern USA, 9 Mexico"},
        {MarkerOf(16),
         "16 England\nBen (Player 2), 1 troop, 0 tanks, defense\nPays $39 a turn\n"
         "Neighbours: 5 Greenland, 18 French Territory"},
        {MarkerOf(35), "35 Japan\nheld by nobody\nPays $43 a turn\nNeighbours: 34 Manchurian Territory"}};
    for (const auto& [place, text] : rows) {
        ShowTooltip("frm3", place);
        EXPECT_EQ(QToolTip::text(), "<p style='white-space:pre'>" + text + "</p>");
    }
    ShowTooltip("frm3", Atlantic);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    EXPECT_EQ(Control("frm3", "lblBuy").toolTip(), "Key: B");
    EXPECT_EQ(Control("frm3", "lblAttack").toolTip(), "Nobody attacks in their first turn.");
    EXPECT_FALSE(QToolTip::isVisible());
    Type("a");
    EXPECT_EQ(QToolTip::text(), "Nobody attacks in their first turn.") << "the key of a disabled command";
    Type("r");
    EXPECT_EQ(Control("frm3", "lblBuy").toolTip(), "Another window wants to be closed first.");
    EXPECT_EQ(Control("frmTransport", "lblGo").toolTip(), "You have no move left this turn.");
}

TEST(Controls, TheLoadScreen) {
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
    Click("frmLoad", "lblGo(0)");  // nothing is selected
    Click("frmLoad", "lblGo(1)");
    const QString question = "NoIcon: Confirm Delete: Are you sure you want to delete the game %1.vrs?";
    sitting.Expect({question.arg("Beta"), "n"});
    sitting.Expect({question.arg("Beta"), "y"});
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
    EXPECT_EQ(Type("\n"), "Vorlund - Load Game") << "a file that is gone is not loaded";
    sitting.Expect({question.arg("gamma"), "y"});
    sitting.Expect({"Warning: The game 'gamma.vrs' could not be deleted.\n" + Reason(ENOENT)});
    Press(Qt::Key_Delete);
    EXPECT_EQ(listed(), "alpha.vrs") << "after a deletion that failed";
    EXPECT_EQ(Click("frmLoad", "lblGo(2)"), "Vorlund");
    sitting.Folder() = SavedGamesFolder("/dev/null");
    sitting.Expect({"Warning: The saved games could not be listed.\n" + Reason(ENOTDIR)});
    EXPECT_EQ(Click("frm1", "lblLoad"), "Vorlund - Load Game");
}

TEST(Controls, ErrorsOfSaving) {
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
    EXPECT_EQ(Type("b\n"), BoardTitle);
}

TEST(Controls, ALoneSurrogateIsRefused) {
    QGuiApplication::clipboard()->setText("eleven char\U0001F600");  // the last takes two of twelve places
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

TEST(Controls, ADoubleClickLoadsOnTheRelease) {
    Sitting sitting;
    sitting.Put("a.vrs", AnnaAndBen());
    Click("frm1", "lblLoad");
    auto& list = static_cast<QListWidget&>(Control("frmLoad", "flb1"));
    QWidget* view = list.viewport();
    const QPoint place = list.visualItemRect(list.item(0)).center();
    const auto doubleClick = [&](Qt::MouseButton button, QPoint at) {
        QTest::mouseClick(view, button, {}, place);
        QTest::mouseDClick(view, button, {}, at);
        return Desktop();
    };
    doubleClick(Qt::RightButton, place);
    QTest::mouseRelease(view, Qt::RightButton, {}, place);
    doubleClick(Qt::LeftButton, {place.x(), view->height() - 5});
    QTest::mouseRelease(view, Qt::LeftButton, {}, place);
    EXPECT_EQ(Desktop(), "Vorlund - Load Game") << "the right button, and beside the list";
    EXPECT_TRUE(QFile(sitting.Saves() + "/a.vrs").rename(sitting.Saves() + "/b.vrs"));
    doubleClick(Qt::LeftButton, place);  // a file that is gone
    QTest::mouseRelease(view, Qt::LeftButton, {}, place);
    EXPECT_EQ(Desktop(), "Vorlund - Load Game");
    sitting.Put("a.vrs", AnnaAndBen());
    QTest::mouseClick(view, Qt::LeftButton, {}, place);
    EXPECT_EQ(doubleClick(Qt::LeftButton, place), "Vorlund - Load Game");
    QTest::mouseRelease(view, Qt::LeftButton, {}, place);
    EXPECT_EQ(Desktop(), BoardTitle);
}

TEST(Controls, F1ShowsTheRulesBesideEveryWindow) {
    Sitting sitting;
    Press(Qt::Key_F1);
    EXPECT_EQ(Desktop(), "Vorlund | Vorlund - Rules");
    const auto& rules = static_cast<QTextBrowser&>(Control("RulesPage", "rules"));
    EXPECT_TRUE(
        rules.toPlainText().startsWith("The rules a player needs\nAim and start\nTwo to five players"));
    Press(Qt::Key_End);
    EXPECT_EQ(rules.verticalScrollBar()->value(), rules.verticalScrollBar()->maximum());
    Type("\033");
    sitting.Resume(ThreePlayers);
    Type("b");
    Press(Qt::Key_F1);
    Type("\033");
    sitting.Expect({NoTransaction, "\n", [] {
                        Press(Qt::Key_F1);
                        EXPECT_FALSE(Desktop().endsWith("Rules"));
                    }});
    Type("\n\033");
    Press(Qt::Key_F1);
    EXPECT_EQ(Desktop(), AnnasTurn + " | Vorlund - Rules");
    sitting.Expect({LeaveQuestion, "y"});
    EXPECT_TRUE(EndsProgram([] { Close("frm3"); }));
}

TEST(Controls, ClosingTheFirstScreensEndsTheProgram) {
    for (const auto& [keys, window, yes, no] :
         {std::array{" ", "frm2", "'Yes'", "'No'"}, {" \nAnna\t\tBen\n", "frmSelect", "'yes'", "'no'"}}) {
        Sitting sitting;
        Type(keys);
        Window(window);
        sitting.Expect({QString("NoIcon: Closing this window will terminate your new game.\n"
                                "Press %1 to exit or %2 to return.")
                            .arg(yes, no),
                        "y"});
        EXPECT_TRUE(EndsProgram([name = window] { Close(name); })) << window;
    }
    {
        Sitting sitting;
        Type(" \nAnna\t\tBen\n");
        Window("frmSelect");
        sitting.Expect({LeaveQuestion, "y"});
        EXPECT_TRUE(EndsProgram([] { Close("frm3"); }));
    }
    const Sitting sitting;
    EXPECT_TRUE(EndsProgram([] { Click("frm1", "lblExit"); }));
}

}  // namespace
}  // namespace vorlund
