#include <QTest>

#include "tests/rules/small_worlds.h"
#include "tests/screens/hands.h"

using namespace vorlund;

namespace {

// Anna has a factory, a bomb and money, and Ben is her neighbour.
GameState Neighbours() {
    GameState game = NewGame(3);
    Give(game, 6, 0, 10, 3);
    GiveFactory(game, 6);
    Give(game, 7, 1, 2);
    Give(game, 35, 2, 5);
    game.PlayerAt(0).Money = 1000;
    game.PlayerAt(0).Oil = 30;
    game.PlayerAt(0).HasNuke = true;
    return game;
}

}  // namespace

class CrossingsTest : public QObject {
    Q_OBJECT

private slots:
    void EntriesAreRefused_data();
    void EntriesAreRefused();
    void EveryWayOutGivesTheCommandsBack_data();
    void EveryWayOutGivesTheCommandsBack();
    void NoAttackInTheFirstTurn();
    void AReportClosesWhileADialogIsOpen();
    void EndTurnClosesDialogsAndReport();
    void AMoveLeavesTheOlderReport();
    void DeathClosesTheOtherDialogs();
    void TheEndOfTheGameClosesTheOtherDialogs();
    void ClosingTheBoardClosesAll();
    void ADialogOpensRightBehindItsClosing();
    void WhatIsTypedAheadOfAnAnswerClosesNothing();
    void HeldKeysDoNothing();
    void KeypadEnterIsEnter();
};

void CrossingsTest::EntriesAreRefused_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QStringList>("entries");  // fields and what goes into them; Enter in the last
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const char* key, const char* window, const QStringList& entries,
                        const QString& message) {
        QTest::addRow("%s", name) << key << window << entries << message;
    };
    const QString nothing = "The data you entered will not make a transaction.";
    const QString number = " you need a valid territory number (1-42).\nNo transaction was made.";
    row("buying nothing", "b", "frmBuy", {"txtC1", "7"}, nothing);
    row("buying with letters", "b", "frmBuy", {"txtOil", "xy"}, nothing);
    row("buying in 43", "b", "frmBuy", {"txtC1", "43", "txtTroops", "1"}, "To buy Troops" + number);
    row("buying in 0", "b", "frmBuy", {"txtC1", "0", "txtTanks", "1"}, "To buy Tanks" + number);
    row("selling in a blank", "s", "frmSell", {"txtC1", " ", "txtTroops", "1"}, nothing);
    row("selling in 43", "s", "frmSell", {"txtC1", "43", "txtTanks", "1"}, "To sell Tanks" + number);
    row("selling letters", "s", "frmSell", {"txtC1", "7", "txtTanks", "two"}, nothing);
    row("selling oil that is not there", "s", "frmSell", {"txtOil", "33"},
        "You cannot sell more oil barrels than you have.");
    const QString move =
        "You entered invalid transport data...\nCheck the validity of your move and try again.";
    row("moving from nowhere", "r", "frmTransport", {"txtC1", ""},
        "Enter a number 1-42 for the territory with the starting units.");
    row("moving to nowhere", "r", "frmTransport", {"txtC1", "7", "txtC2", ""},
        "Enter a number 1-42 for the destination territory.");
    row("moving to 43", "r", "frmTransport", {"txtC1", "7", "txtC2", "43", "txtTroops", "1"}, move);
    row("moving letters", "r", "frmTransport", {"txtC1", "7", "txtC2", "6", "txtTanks", "x"}, move);
    const QString attack =
        "You entered invalid attack data...\nCheck the validity of your attack and try again.";
    row("attacking from nowhere", "a", "frmAttack", {"txtC1", ""},
        "Enter a number 1-42 for the attacking territory.");
    row("attacking with nothing", "a", "frmAttack", {"txtC1", "7", "txtC2", "8"},
        "Enter a number for either troops or tanks.");
    row("attacking from 0", "a", "frmAttack", {"txtC1", "0", "txtC2", "8", "txtTroops", "1"}, attack);
    row("attacking with blanks", "a", "frmAttack", {"txtC1", "7", "txtC2", "8", "txtTanks", "  "}, attack);
    row("bombing 43", "a", "frmAttack", {"txtN", "43"}, "The country number must be 1-42.");
    row("a factory in letters", "u", "frmUpgrade", {"txtC1", "ab"},
        "Building a factory requires a valid territory number (1-42).\nNo transaction was made.");
    row("a defense in 0", "u", "frmUpgrade", {"txtC2", "0"},
        "Building defense requires a valid territory number (1-42).\nNo transaction was made.");
    row("a game without a name", "v", "frmSave", {"txtSave", ""},
        "Enter an identifiable game name to open at a later time.");
}

void CrossingsTest::EntriesAreRefused() {
    QFETCH(QString, key);
    QFETCH(QString, window);
    QFETCH(QStringList, entries);
    QFETCH(QString, message);
    Sitting sitting(NoLuck());
    sitting.Resume(Neighbours());
    const GameState before = sitting.Game();
    Sitting::Type(key);
    QVERIFY(Sitting::IsOpen(window));
    for (int i = 0; i < entries.size(); i += 2) {
        Sitting::Fill(window, entries[i], entries[i + 1]);
    }
    sitting.Expect({QMessageBox::Warning, message});
    Sitting::Press(Qt::Key_Return);
    for (int i = 0; i < entries.size(); i += 2) {
        QCOMPARE(Sitting::Text(window, entries[i]), entries[i + 1]);
    }
    QVERIFY(sitting.Game() == before);
    QCOMPARE(Sitting::Commands(), "");
}

void CrossingsTest::EveryWayOutGivesTheCommandsBack_data() {
    QTest::addColumn<QString>("window");
    QTest::addColumn<bool>("enterCloses");
    QTest::addRow("b") << "frmBuy" << false;
    QTest::addRow("s") << "frmSell" << false;
    QTest::addRow("r") << "frmTransport" << false;
    QTest::addRow("a") << "frmAttack" << false;
    QTest::addRow("u") << "frmUpgrade" << false;
    QTest::addRow("t") << "frmStatus" << true;
    QTest::addRow("v") << "frmSave" << false;
}

void CrossingsTest::EveryWayOutGivesTheCommandsBack() {
    QFETCH(QString, window);
    QFETCH(bool, enterCloses);
    const QString key = QTest::currentDataTag();
    Sitting sitting(NoLuck());
    sitting.Resume(Neighbours());
    const std::vector<std::function<void()>> ways{[] { Sitting::Press(Qt::Key_Escape); },
                                                  [&window] { Sitting::CloseWindow(window); },
                                                  [] { Sitting::Press(Qt::Key_Enter, Qt::KeypadModifier); }};
    for (std::size_t way = 0; way < ways.size() - (enterCloses ? 0 : 1); ++way) {
        Sitting::Type(way == 0 ? key : key.toUpper());
        QVERIFY(Sitting::IsOpen(window));
        QCOMPARE(Sitting::Commands(), "");
        ways[way]();
        QVERIFY(!Sitting::IsOpen(window));
        QCOMPARE(Sitting::Commands(), "bsrautev");
    }
}

void CrossingsTest::NoAttackInTheFirstTurn() {
    GameState game = Neighbours();
    game.PlayerAt(0).FirstTurn = true;
    Sitting sitting(NoLuck());
    sitting.Resume(game);
    QCOMPARE(Sitting::Commands(), "bsrutev");
    Sitting::Type("ab");
    QVERIFY(!Sitting::IsOpen("frmAttack") && Sitting::IsOpen("frmBuy"));
    Sitting::Press(Qt::Key_Escape);
    QCOMPARE(Sitting::Commands(), "bsrutev");
}

void CrossingsTest::AReportClosesWhileADialogIsOpen() {
    Sitting sitting(NoLuck());
    sitting.Resume(Neighbours());
    Sitting::Type("b7\t1\n");
    QCOMPARE(Sitting::Title("frmReport"), "Vorlund - Buy");
    QCOMPARE(Sitting::Commands(), "bsrautev");
    Sitting::Click("frm3", "lblTransport");
    QCOMPARE(Sitting::Commands(), "");
    Sitting::Type("7\t6\t2");
    Sitting::CloseWindow("frmReport");
    QVERIFY(!Sitting::IsOpen("frmReport"));
    QVERIFY(Sitting::IsOpen("frmTransport"));
    QCOMPARE(Sitting::Commands(), "bsrautev");
    Sitting::Click("frm3", "lblTransport");
    QCOMPARE(Sitting::Commands(), "");
    Sitting::Press(Qt::Key_Return);
    QCOMPARE(Sitting::Text("frmTransport", "lblA"), "Move to Western USA was successful.");
    Sitting::Press(Qt::Key_Escape);
    QVERIFY(!Sitting::IsOpen("frmTransport"));
    QCOMPARE(Sitting::Commands(), "bsrautev");
}

void CrossingsTest::EndTurnClosesDialogsAndReport() {
    Sitting sitting(NoLuck());
    sitting.Resume(Neighbours());
    Sitting::Type("b7\t1\n");
    Sitting::Click("frm3", "lblUpgrade");
    Sitting::CloseWindow("frmReport");
    Sitting::Click("frm3", "lblBuy");
    Sitting::Type("7\t1\n");
    QVERIFY(Sitting::IsOpen("frmUpgrade") && Sitting::IsOpen("frmReport"));
    Sitting::Click("frm3", "lblEndTurn");
    QVERIFY(!Sitting::IsOpen("frmUpgrade"));
    QVERIFY(Sitting::ReportText().startsWith("Vorlund - Upkeep\nUpkeep status for Player 2, Ben.\n"));
    QCOMPARE(Sitting::Commands(), "");
    QCOMPARE(Sitting::Title("frm3"), "Vorlund - Ben's turn");
}

void CrossingsTest::AMoveLeavesTheOlderReport() {
    Sitting sitting(NoLuck());
    sitting.Resume(Neighbours());
    Sitting::Type("b7\t1\n");
    const QString report = Sitting::ReportText();
    Sitting::Click("frm3", "lblTransport");
    Sitting::Type("7\t6\t2\n");
    QCOMPARE(Sitting::Text("frm3", "lblCntry(5)"), "2/0");
    QCOMPARE(Sitting::ReportText(), report);
}

void CrossingsTest::DeathClosesTheOtherDialogs() {
    GameState game = Neighbours();
    Sitting sitting(ByScript(std::vector<float>(12, 0.9F)));  // nine troops, and three hits of the tank
    game.TerritoryAt(6).Tanks = 1;
    game.PlayerAt(0).Tanks = 1;
    sitting.Resume(game);
    Sitting::Type("s7\t1\n");
    Sitting::Click("frm3", "lblUpgrade");
    Sitting::CloseWindow("frmReport");
    Sitting::Click("frm3", "lblAttack");
    Sitting::Type("7\t8\t9\t1\n");
    QVERIFY(Sitting::ReportText().contains("You have killed yourself"));
    QVERIFY(!Sitting::IsOpen("frmUpgrade"));
    QCOMPARE(Sitting::Commands(), "e");
    Sitting::Press(Qt::Key_Return);
    QCOMPARE(Sitting::Commands(), "e");
}

void CrossingsTest::TheEndOfTheGameClosesTheOtherDialogs() {
    GameState game = NewGame(2);
    Give(game, 6, 0, 3);
    Give(game, 7, 1, 1);
    Sitting sitting(ByScript({0.1F}));
    sitting.Resume(game);
    Sitting::Type("s7\t1\n");
    Sitting::Click("frm3", "lblUpgrade");
    Sitting::CloseWindow("frmReport");
    Sitting::Click("frm3", "lblAttack");
    Sitting::Type("7\t8\t2\n");
    QVERIFY(Sitting::ReportText().endsWith("Player 2 is now dead."));
    Sitting::Click("frm3", "lblSell");
    sitting.Expect({QMessageBox::Warning, "All players are dead, no one wins..."});
    Sitting::Type("8\t2\n");
    QVERIFY(!Sitting::IsOpen("frmUpgrade") && !Sitting::IsOpen("frmSell"));
    QCOMPARE(Sitting::Commands(), "");
    Sitting::Press(Qt::Key_Return);
    QCOMPARE(Sitting::Commands(), "");
}

void CrossingsTest::ClosingTheBoardClosesAll() {
    Sitting sitting(NoLuck());
    sitting.Resume(Neighbours());
    Sitting::Type("b7\t1\n");
    Sitting::Click("frm3", "lblUpgrade");
    QVERIFY(Sitting::IsOpen("frmReport") && Sitting::IsOpen("frmUpgrade"));
    const QString question =
        "Closing this game window will end the game.\nAre you sure you want to continue?";
    sitting.Expect({QMessageBox::Question, question, QMessageBox::No});
    Sitting::CloseWindow("frm3");
    QVERIFY(Sitting::IsOpen("frmReport") && Sitting::IsOpen("frmUpgrade") && Sitting::IsOpen("frm3"));
    QCOMPARE(Sitting::Commands(), "");
    sitting.Expect({QMessageBox::Question, question, QMessageBox::Yes});
    QVERIFY(Sitting::Ends([] { Sitting::CloseWindow("frm3"); }));
}

void CrossingsTest::ADialogOpensRightBehindItsClosing() {
    Sitting sitting(NoLuck());
    sitting.Resume(Neighbours());
    Sitting::Type("b");
    // Both keys at once, before the closed dialog is gone
    Sitting::Window("frmBuy").close();
    QKeyEvent key(QEvent::KeyPress, Qt::Key_B, {}, "b");
    QApplication::sendEvent(&Sitting::Window("frm3"), &key);
    QTest::qWait(1);
    QVERIFY(Sitting::IsOpen("frmBuy"));
    Sitting::Press(Qt::Key_Escape);
    QCOMPARE(Sitting::Commands(), "bsrautev");
}

void CrossingsTest::WhatIsTypedAheadOfAnAnswerClosesNothing() {
    Sitting sitting(NoLuck());
    sitting.Resume(Neighbours());
    Sitting::Type("b");
    sitting.Expect(
        {QMessageBox::Warning, "The data you entered will not make a transaction.", QMessageBox::Ok, [] {
             QApplication::activeModalWidget()->hide();
             Sitting::Window("frmBuy").close();
         }});
    Sitting::Click("frmBuy", "lblGo");
    QVERIFY(Sitting::IsOpen("frmBuy"));
}

void CrossingsTest::HeldKeysDoNothing() {
    Sitting sitting(NoLuck());
    sitting.Resume(Neighbours());
    for (const char letter : {'b', 's', 'r', 'a', 'u', 't', 'e', 'v'}) {
        Sitting::Hold(Qt::Key(letter - 'a' + Qt::Key_A), QString(letter));
        QCOMPARE(Sitting::Commands(), "bsrautev");
    }
    Sitting::Type("b");
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        Sitting::Hold(key);  // in a field
    }
    QVERIFY(Sitting::IsOpen("frmBuy"));
    bool boxStays = false;
    sitting.Expect({QMessageBox::Warning, "The data you entered will not make a transaction.",
                    QMessageBox::Ok, [&boxStays] {
                        Sitting::Hold(Qt::Key_Return);
                        Sitting::Hold(Qt::Key_Escape);
                        boxStays = QApplication::activeModalWidget() != nullptr;
                    }});
    Sitting::Press(Qt::Key_Return);
    QVERIFY(boxStays);
    Sitting::Type("7\t1\n");
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        Sitting::Hold(key);
    }
    QVERIFY(Sitting::IsOpen("frmReport"));
}

void CrossingsTest::KeypadEnterIsEnter() {
    Sitting sitting(NoLuck());
    sitting.Resume(Neighbours());
    Sitting::Type("b7\t1");
    Sitting::Press(Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(Sitting::Title("frmReport"), "Vorlund - Buy");
    Sitting::Press(Qt::Key_Enter, Qt::KeypadModifier);
    QVERIFY(!Sitting::IsOpen("frmReport"));
}

QTEST_MAIN(CrossingsTest)
#include "crossings_test.moc"
