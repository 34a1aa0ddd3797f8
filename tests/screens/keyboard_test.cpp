#include <QApplication>
#include <QScrollBar>
#include <QTest>

#include "tests/screens/hands.h"

using namespace vorlund;

namespace {

QString Focus() {
    return QApplication::focusWidget() == nullptr ? "(none)" : QApplication::focusWidget()->objectName();
}

// Where Tab leads, one name after the other, until it comes round; "(not seen)" behind a name when the focus
// cannot be seen there.
QStringList Tabs() {
    QStringList stops;
    if (!QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; })) {
        return {"(none)"};
    }
    const QString first = Focus();
    do {
        stops << Focus();
        const QWidget& here = *QApplication::focusWidget();
        const QRect around = here.geometry().adjusted(-3, -3, 3, 3);
        const QImage with = here.window()->grab(around).toImage();
        Sitting::Press(Qt::Key_Tab);
        if (!here.isWindow() && here.window()->grab(around).toImage() == with) {
            stops.back() += "(not seen)";
        }
    } while (Focus() != first && stops.size() < 20);
    return stops;
}

void BeginAGame() {
    QCOMPARE(Tabs(), QStringList({"lblPlay", "lblLoad", "lblExit"}));
    Sitting::Press(Qt::Key_Down);
    QCOMPARE(Focus(), "lblLoad");
    Sitting::Press(Qt::Key_Up);
    Sitting::Press(Qt::Key_Space);
    Sitting::Window("frm2");
    QCOMPARE(Tabs(), QStringList({"opt2", "lblCont"}));
    Sitting::Press(Qt::Key_Down);
    QCOMPARE(Focus(), "opt3");
    Sitting::Press(Qt::Key_Up);
    Sitting::Type("\n");
    QCOMPARE(Tabs(), QStringList({"txtN(0)", "cmp(0)", "txtN(1)", "cmp(1)", "lblCont"}));
    Sitting::Type("Anna\t\t\t ");
    QCOMPARE(Sitting::Text("frm2", "txtN(1)"), "Computer");
    Sitting::Press(Qt::Key_Escape);
    Sitting::Type("\t\n");
    Sitting::Window("frmSelect");
    Sitting::Press(Qt::Key_Escape);
    Sitting::Type("7\n\n");
}

// Opens a dialog by its key, fills its fields in their order, and closes it again with what it has led to.
void Order(char key, const QString& window, const QStringList& fields, const QString& entries) {
    Sitting::Type(QString(QLatin1Char(key)));
    Sitting::Window(window);
    QCOMPARE(Tabs(), fields);
    Sitting::Type(entries);
    Sitting::Press(Qt::Key_Escape);
    QVERIFY2(!Sitting::IsOpen(window) && !Sitting::IsOpen("frmReport"), qPrintable(window));
    QCOMPARE(Sitting::Commands(), "bsrautev");
}

// In a second run of the program: the game is nearly deleted, then loaded.
void LoadIt(const QString& saves, GameState saved) {
    Sitting sitting(NoLuck(), saves);
    Sitting::Type("\t\n");
    Sitting::Window("frmLoad");
    QCOMPARE(Tabs(), QStringList({"flb1", "lblGo(0)", "lblGo(1)", "lblGo(2)"}));
    Sitting::Press(Qt::Key_Escape);
    Sitting::Press(Qt::Key_Down);
    sitting.Expect({QMessageBox::NoIcon,
                    "Are you sure you want to delete the game keys.vrs?",
                    QMessageBox::No,
                    {},
                    "Confirm Delete"});
    Sitting::Press(Qt::Key_Delete);
    Sitting::Type("\n");
    Sitting::Window("frm3");
    saved.GameLoaded = true;
    QVERIFY(sitting.Game() == saved);
}

}  // namespace

class KeyboardTest : public QObject {
    Q_OBJECT

private slots:
    static void AGameByKeysAlone();
    static void AReportScrolls();
};

void KeyboardTest::AGameByKeysAlone() {
    const QTemporaryDir saves;
    const QString board = "frm3";
    const QStringList trade{"txtC1", "txtTroops", "txtTanks", "txtOil"};
    const QStringList war{"txtC1", "txtC2", "txtTroops", "txtTanks"};
    GameState saved;
    {
        Sitting sitting(NoLuck(), saves.path());
        BeginAGame();
        QCOMPARE(Tabs(), QStringList({board, "lblBuy", "lblSell", "lblTransport", "lblUpgrade", "lblStatus",
                                      "lblEndTurn", "lblSave"}));
        Sitting::Type("e\n\n");  // the turn, the computer's report and the upkeep's
        QCOMPARE(Tabs(), QStringList({board, "lblBuy", "lblSell", "lblTransport", "lblAttack", "lblUpgrade",
                                      "lblStatus", "lblEndTurn", "lblSave"}));
        const Player& anna = sitting.Game().PlayerAt(0);
        const int money = anna.Money;
        Order('r', "frmTransport", war, "7\t6\t2\t0\n");
        QCOMPARE(anna.MovesLeft, 1);
        Order('a', "frmAttack", war + QStringList("txtN"), "7\t2\t1\t0\n");
        QCOMPARE(anna.AttacksLeft, 1);
        Order('b', "frmBuy", trade, "7\t3\t0\t0\n");
        QCOMPARE(anna.Money, money - 30);
        Order('s', "frmSell", trade, "6\t1\t0\t0\n");
        QCOMPARE(anna.Money, money - 23);
        Sitting::Type("u");
        Sitting::Window("frmUpgrade");
        Sitting::Press(Qt::Key_3, Qt::AltModifier);
        QTRY_COMPARE(anna.NuclearLevel, 1);
        Sitting::Press(Qt::Key_Escape);
        // A command that has the focus is run by Enter, and by its letter whichever has it.
        Sitting::Type("\t\t\t\t\t\t\n");
        QVERIFY(Sitting::IsOpen("frmStatus"));
        Sitting::Type("\n\t\tv");
        sitting.Expect({QMessageBox::Information, "Game 'keys.vrs' properly saved."});
        Sitting::Window("frmSave");
        Sitting::Type("keys\n");
        saved = sitting.Game();
        sitting.Expect({QMessageBox::Question,
                        "Closing this game window will end the game.\nAre you sure you want to continue?",
                        QMessageBox::Yes});
        QVERIFY(Sitting::Ends([] { Sitting::CloseWindow("frm3"); }));
    }
    LoadIt(saves.path(), saved);
}

void KeyboardTest::AReportScrolls() {
    const QTemporaryDir saves;
    Program program(NoLuck(), SavedGamesFolder(saves.path().toStdString()));
    program.Start();
    program.game().GameLoaded = true;
    program.game().NumPlayers = 2;
    program.OpenBoard();
    std::string body;
    for (int line = 1; line <= 40; ++line) {
        body += std::to_string(line) + "\r";
    }
    program.screens().ShowActionReport({"Vorlund - Buy", "Forty lines", body});
    const auto bars = Sitting::Window("frmReport").findChildren<QScrollBar*>();
    const auto bar = *std::find_if(bars.begin(), bars.end(), [](auto* b) { return b->maximum() > 0; });
    QVERIFY(QTest::qWaitForWindowActive(&Sitting::Window("frmReport")));
    const int line = bar->singleStep();
    const int page = bar->pageStep();
    const int last = bar->maximum();
    const std::vector<std::pair<Qt::Key, int>> steps{{Qt::Key_Down, line}, {Qt::Key_PageDown, line + page},
                                                     {Qt::Key_Up, page},   {Qt::Key_PageUp, 0},
                                                     {Qt::Key_End, last},  {Qt::Key_Down, last},
                                                     {Qt::Key_Home, 0}};
    for (const auto& [key, place] : steps) {
        Sitting::Press(key);
        QCOMPARE(bar->value(), place);
    }
    program.End();
}

QTEST_MAIN(KeyboardTest)
#include "keyboard_test.moc"
