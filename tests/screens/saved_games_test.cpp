#include <QAbstractButton>
#include <QDir>
#include <QElapsedTimer>
#include <QListWidget>
#include <QTest>

#include "tests/rules/small_worlds.h"
#include "tests/screens/hands.h"

using namespace vorlund;

namespace {

QStringList Listed() {
    const auto& list = static_cast<QListWidget&>(Sitting::Control("frmLoad", "flb1"));
    QStringList files;
    for (int i = 0; i < list.count(); ++i) {
        files << list.item(i)->text();
    }
    return files;
}

GameState AnnasGame() {
    GameState game = NewGame(2);
    Give(game, 6, 0, 10, 2);
    GiveFactory(game, 6);
    Give(game, 35, 1, 5);
    game.PlayerAt(0).Money = 1000;
    return game;
}

// Walks with the Tab key to a command of the window that has the keyboard, and presses it.
void TabTo(const QString& window, const QString& control) {
    QWidget& command = Sitting::Control(window, control);
    for (int i = 0; i < 12 && !command.hasFocus(); ++i) {
        Sitting::Press(Qt::Key_Tab);
    }
    Sitting::Press(Qt::Key_Return);
}

}  // namespace

class SavedGamesTest : public QObject {
    Q_OBJECT

private slots:
    void AWholeTurnByKeyboard();
    void ADoubleClickLoadsWhenItIsLetGo();
    void LoadAndDeleteNeedASelection();
    void ABadFileIsRefused();
    void AThousandGamesAreListed();
};

void SavedGamesTest::AWholeTurnByKeyboard() {
    const QTemporaryDir saves;
    const QString again = "Saved game already exists...\nWould you like to overwrite this file?";
    {
        Sitting sitting(NoLuck(), saves.path());
        sitting.Put("start.vrs", AnnasGame());
        Sitting::Window("frm1");
        TabTo("frm1", "lblLoad");
        Sitting::Window("frmLoad");
        Sitting::Press(Qt::Key_Down);
        Sitting::Press(Qt::Key_Return);
        QCOMPARE(Sitting::Title("frm3"), "Vorlund - Anna's turn");

        Sitting::Type("b7\t5\t1\n");
        QCOMPARE(Sitting::ReportText(),
                 "Vorlund - Buy\nDetails on current transaction:\n"
                 "You bought 5 Troops for $50 in Midwest USA.\n"
                 "You bought 1 Tanks for $40 in Midwest USA.\n        Total spent: $90");
        Sitting::Press(Qt::Key_Escape);

        Sitting::Type("r7\t6\t2\n");
        QCOMPARE(Sitting::Text("frmTransport", "lblA"), "Move to Western USA was successful.");
        Sitting::Type("3\n");  // the keyboard has stayed in the troops' field
        QCOMPARE(Sitting::Text("frm3", "lblCntry(5)"), "5/0");
        QVERIFY(!Sitting::Control("frmTransport", "lblGo").isEnabled());
        QCOMPARE(Sitting::Beeps(), 0);
        Sitting::Type("1\n");
        QCOMPARE(Sitting::Beeps(), 1);
        QCOMPARE(Sitting::Text("frm3", "lblCntry(5)"), "5/0");
        Sitting::Press(Qt::Key_Escape);

        Sitting::Type("u");
        Sitting::Press(Qt::Key_1, Qt::AltModifier);
        QTRY_COMPARE(Sitting::Text("frmUpgrade", "lblTop"),
                     "Level 1 Economy upgrade complete.\nYou have $760 to spend.");
        Sitting::Type("6\n");
        QCOMPARE(Sitting::Text("frmUpgrade", "lblTop"),
                 "Factory built in Western USA.\nYou have $580 to spend.");
        Sitting::Press(Qt::Key_Escape);
        QCOMPARE(Sitting::MapFault(sitting.Game()), "");

        sitting.Expect({QMessageBox::Information, "Game 'my game.vrs' properly saved."});
        Sitting::Type("v My Game \n");
        QVERIFY(!Sitting::IsOpen("frmSave"));
        sitting.Expect({QMessageBox::NoIcon, again, QMessageBox::No});
        sitting.Expect(
            {QMessageBox::Information, "Game not saved...\nChoose a different name and try again."});
        Sitting::Type("vMY GAME\n");
        QCOMPARE(Sitting::Text("frmSave", "txtSave"), "MY GAME");
        sitting.Expect({QMessageBox::NoIcon, again, QMessageBox::Yes});
        sitting.Expect({QMessageBox::Information, "Game 'my game.vrs' properly saved."});
        Sitting::Press(Qt::Key_Return);
        QVERIFY(!Sitting::IsOpen("frmSave"));
        QCOMPARE(QDir(saves.path()).entryList(QDir::Files | QDir::Hidden),
                 (QStringList{"my game.vrs", "start.vrs"}));
        sitting.Expect({QMessageBox::Question,
                        "Closing this game window will end the game.\nAre you sure you want to continue?",
                        QMessageBox::Yes});
        QVERIFY(Sitting::Ends([] { Sitting::CloseWindow("frm3"); }));
    }
    Sitting sitting(NoLuck(), saves.path());
    TabTo("frm1", "lblLoad");
    Sitting::Type("my");  // the list goes to what is typed
    Sitting::Press(Qt::Key_Return);
    QCOMPARE(Sitting::Title("frm3"), "Vorlund - Anna's turn");
    QCOMPARE(Sitting::MapFault(sitting.Game()), "");
    Sitting::Type("t");
    QCOMPARE(Sitting::Title("frmStatus"), "Vorlund - Player 1 status");
    QStringList lines;
    for (const char* label : {"lblName", "lblMoney", "lblOil", "lblTroops", "lblTanks", "lblFact", "lblDebt",
                              "lblEco", "lblWar", "lblNuc", "lblAM", "lblUpkeep"}) {
        lines << Sitting::Text("frmStatus", label);
    }
    QCOMPARE(lines.join('|'), "Anna|$580|0|15|3|2|0|1|0|0\nDeveloping nuke...|2 / 0|+ $67");
    Sitting::Press(Qt::Key_Return);
    QCOMPARE(Sitting::Commands(), "bsrautev");
}

void SavedGamesTest::ADoubleClickLoadsWhenItIsLetGo() {
    Sitting sitting(NoLuck());
    sitting.Put("a.vrs", AnnasGame());
    GameState bens = AnnasGame();
    bens.CurrentPlayer = 1;
    bens.PlayerAt(1).FirstTurn = true;
    sitting.Put("b.vrs", bens);
    Sitting::Click("frm1", "lblLoad");
    QVERIFY(!Sitting::IsOpen("frm1"));
    const QPoint place = Sitting::PlaceOfSaved("b.vrs");
    QWindow* window = Sitting::Window("frmLoad").windowHandle();
    QTest::lastMouseTimestamp += 1000;
    const auto mouse = [&place, window](QEvent::Type type) {
        const bool down = type == QEvent::MouseButtonPress;
        QTest::lastMouseTimestamp += 20;
        qt_handleMouseEvent(window, place, window->mapToGlobal(place), down ? Qt::LeftButton : Qt::NoButton,
                            Qt::LeftButton, type, {}, QTest::lastMouseTimestamp);
        QCoreApplication::processEvents();
    };
    mouse(QEvent::MouseButtonPress);
    mouse(QEvent::MouseButtonRelease);
    mouse(QEvent::MouseButtonPress);
    QVERIFY(!Sitting::IsOpen("frm3"));
    mouse(QEvent::MouseButtonRelease);
    QCOMPARE(Sitting::Title("frm3"), "Vorlund - Ben's turn");
    QVERIFY(!Sitting::IsOpen("frmLoad") && !Sitting::IsOpen("frm1"));
    QCOMPARE(Sitting::Commands(), "bsrutev");
    QCOMPARE(Sitting::MapFault(sitting.Game()), "");
}

void SavedGamesTest::LoadAndDeleteNeedASelection() {
    Sitting sitting(NoLuck());
    sitting.Put("Beta.vrs", AnnasGame());
    sitting.Put("alpha.vrs", AnnasGame());
    sitting.Put("gamma.vrs", AnnasGame());
    QVERIFY(QFile::copy(sitting.Saves() + "/alpha.vrs", sitting.Saves() + "/alpha.bak"));
    Sitting::Click("frm1", "lblLoad");
    QCOMPARE(Listed(), (QStringList{"alpha.vrs", "Beta.vrs", "gamma.vrs"}));
    Sitting::Click("frmLoad", "lblGo(0)");
    Sitting::Click("frmLoad", "lblGo(1)");
    QVERIFY(Sitting::IsOpen("frmLoad"));

    const QString question = "Are you sure you want to delete the game %1?";
    const auto asked = [&question](const char* file, QMessageBox::StandardButton answer) {
        return Box{QMessageBox::NoIcon, question.arg(file), answer, {}, "Confirm Delete"};
    };
    Sitting::ClickSaved("Beta.vrs");
    sitting.Expect(asked("Beta.vrs", QMessageBox::No));
    Sitting::Click("frmLoad", "lblGo(1)");
    QCOMPARE(Listed().size(), 3);
    sitting.Expect(asked("Beta.vrs", QMessageBox::Yes));
    Sitting::Press(Qt::Key_Delete);
    QCOMPARE(Listed(), (QStringList{"alpha.vrs", "gamma.vrs"}));
    QCOMPARE(QDir(sitting.Saves()).entryList(QDir::Files),
             (QStringList{"alpha.bak", "alpha.vrs", "gamma.vrs"}));

    Sitting::ClickSaved("gamma.vrs");
    QVERIFY(QFile::remove(sitting.Saves() + "/gamma.vrs"));
    Sitting::Click("frmLoad", "lblGo(0)");  // nothing happens: the game has gone
    QVERIFY(Sitting::IsOpen("frmLoad") && !Sitting::IsOpen("frm3"));
    Sitting::CloseWindow("frmLoad");
    QVERIFY(Sitting::IsOpen("frm1") && !Sitting::IsOpen("frmLoad"));
    Sitting::Click("frm1", "lblLoad");
    QCOMPARE(Listed(), QStringList{"alpha.vrs"});
    Sitting::Click("frmLoad", "lblGo(2)");
    QVERIFY(Sitting::IsOpen("frm1") && !Sitting::IsOpen("frmLoad"));
}

void SavedGamesTest::ABadFileIsRefused() {
    Sitting sitting(NoLuck());
    sitting.Put("bad.vrs", AnnasGame());
    QFile file(sitting.Saves() + "/bad.vrs");
    QVERIFY(file.open(QIODevice::ReadWrite) && file.write(" 7 ") == 3);
    file.close();
    const GameState before = sitting.Game();
    Sitting::Click("frm1", "lblLoad");
    Sitting::ClickSaved("bad.vrs");
    sitting.Expect({QMessageBox::Warning,
                    "The game 'bad.vrs' could not be loaded.\n"
                    "Line 1: NumPlayers of the game must be a whole number from 2 to 5."});
    Sitting::Click("frmLoad", "lblGo(0)");
    QVERIFY(Sitting::IsOpen("frmLoad") && !Sitting::IsOpen("frm3"));
    QVERIFY(sitting.Game() == before);
}

void SavedGamesTest::AThousandGamesAreListed() {
    Sitting sitting(NoLuck());
    sitting.Put("game 1000.vrs", AnnasGame());
    QFile game(sitting.Saves() + "/game 1000.vrs");
    QVERIFY(game.open(QIODevice::ReadOnly));
    const QByteArray bytes = game.readAll();
    for (int i = 0; i < 999; ++i) {
        QFile copy(sitting.Saves() + QString("/game %1.vrs").arg(i));
        QVERIFY(copy.open(QIODevice::WriteOnly) && copy.write(bytes) == bytes.size());
    }
    QElapsedTimer time;
    time.start();
    Sitting::Click("frm1", "lblLoad");
    QVERIFY(QTest::qWaitForWindowExposed(&Sitting::Window("frmLoad")));
    QTest::setBenchmarkResult(double(time.elapsed()), QTest::WalltimeMilliseconds);
    QCOMPARE(Listed().size(), 1000);
    Sitting::Press(Qt::Key_End);
    Sitting::Press(Qt::Key_Return);
    QCOMPARE(Sitting::Title("frm3"), "Vorlund - Anna's turn");
}

QTEST_MAIN(SavedGamesTest)
#include "saved_games_test.moc"
