#include <QTest>

#include "tests/engine/seeded_random.h"
#include "tests/rules/small_worlds.h"
#include "tests/screens/hands.h"

using namespace vorlund;

namespace {

// Draws of a battle between equals: the defender loses a unit, or the attacker does.
constexpr float Hit = 0.2F;
constexpr float Miss = 0.9F;

GameState WithComputers(int players) {
    GameState game = NewGame(players);
    for (int p = 1; p < players; ++p) {
        game.PlayerAt(p).Name = "CompPlayer" + std::to_string(p + 1);
        game.PlayerAt(p).IsComputer = true;
    }
    return game;
}

}  // namespace

class WarTest : public QObject {
    Q_OBJECT

private slots:
    void AnAttackToItsReport();
    void AStrikeToItsReport();
    void AnAttackIsRefused();
    void TheSurvivorWinsAtEndTurn();
    void AComputerWinsInItsTurn();
    void SuicideByAttack();
    void TwoComputersInARow();
    void TheLastButOneCollapses();
    void NobodyWinsByASale();
    void ComputersPlayOnAmongThemselves();
};

void WarTest::AnAttackToItsReport() {
    GameState game = NewGame(2);
    Give(game, 6, 0, 10);
    Give(game, 7, 1, 2);
    Give(game, 35, 1, 5);
    GiveFactory(game, 7);
    Sitting sitting(ByScript({Hit, Miss, Hit}));
    sitting.Resume(game);
    QCOMPARE(Sitting::Title("frm3"), "Vorlund - Anna's turn");
    QCOMPARE(Sitting::Commands(), "bsrautev");
    Sitting::Type("a");
    QCOMPARE(Sitting::Title("frmAttack"), "Vorlund - Attack");
    QCOMPARE(Sitting::Commands(), "");
    QCOMPARE(Sitting::Text("frmAttack", "lblA"), "You have 2 attacks left this turn.");
    Sitting::Type("7\t8\t5\n");
    QVERIFY(!Sitting::IsOpen("frmAttack"));
    QCOMPARE(Sitting::ReportText(),
             "Vorlund - Battle Results\n"
             "The battle was successful... you now have control of Eastern USA.\n"
             "Casualties for attacker (Player 1, Anna):\n"
             "        Troops: 1\n"
             "        Tanks: 0\n\n"
             "Casualties for defender (Player 2, Ben):\n"
             "        Troops: 2\n"
             "        Tanks: 0\n\n");
    QCOMPARE(Sitting::ReportPicture(), -1);
    QCOMPARE(Sitting::MapFault(sitting.Game()), "");
    QCOMPARE(Sitting::Text("frm3", "lblCntry(6)"), "5/0");
    QCOMPARE(Sitting::Text("frm3", "lblCntry(7)"), "4/0");
    Sitting::Click("frmReport", "lblCont");
    QVERIFY(!Sitting::IsOpen("frmReport"));
    QCOMPARE(Sitting::Commands(), "bsrautev");
    Sitting::Type("a");
    QCOMPARE(Sitting::Text("frmAttack", "lblA"), "You have 1 attack left this turn.");
}

void WarTest::AStrikeToItsReport() {
    GameState game = NewGame(2);
    game.PlayerAt(0).HasNuke = true;
    Give(game, 6, 0, 10);
    Give(game, 35, 1, 9, 8);
    Sitting sitting(NoLuck());
    sitting.Resume(game);
    Sitting::Click("frm3", "lblAttack");
    Sitting::Fill("frmAttack", "txtN", "36");
    Sitting::Click("frmAttack", "lblStrike");
    QVERIFY(Sitting::ReportText().startsWith("Vorlund - Nuclear Strike Results\n"));
    QCOMPARE(Sitting::Text("frm3", "lblCntry(35)"), "5/6");
    Sitting::Press(Qt::Key_Escape);
    Sitting::Type("a");
    QVERIFY(!Sitting::Control("frmAttack", "lblStrike").isEnabled());
    Sitting::Fill("frmAttack", "txtN", "36");
    Sitting::Type("\n");
    QCOMPARE(Sitting::Beeps(), 1);
    QCOMPARE(Sitting::Text("frm3", "lblCntry(35)"), "5/6");
}

void WarTest::AnAttackIsRefused() {
    GameState game = NewGame(2);
    Give(game, 6, 0, 10);
    Give(game, 7, 1, 2);
    Sitting sitting(NoLuck());
    sitting.Resume(game);
    const GameState before = sitting.Game();
    Sitting::Type("a");
    const QString invalid =
        "You entered invalid attack data...\nCheck the validity of your attack and try again.";
    sitting.Expect({QMessageBox::Warning, invalid});
    Sitting::Type("7\t43\t5\n");
    sitting.Expect({QMessageBox::Warning, invalid});
    Sitting::Fill("frmAttack", "txtTroops", "ab");
    Sitting::Type("\n");
    QCOMPARE(Sitting::Text("frmAttack", "txtC2"), "43");
    QVERIFY(sitting.Game() == before);
    Sitting::Press(Qt::Key_Escape);
    QVERIFY(!Sitting::IsOpen("frmAttack"));
    QCOMPARE(Sitting::Commands(), "bsrautev");
}

void WarTest::TheSurvivorWinsAtEndTurn() {
    GameState game = NewGame(2);
    Give(game, 6, 0, 10);
    Give(game, 7, 1, 1);
    Sitting sitting(ByScript({Hit}));
    sitting.Resume(game);
    Sitting::Type("a7\t8\t5\n");
    QVERIFY(Sitting::ReportText().endsWith("Player 2 is now dead."));
    Sitting::Press(Qt::Key_Return);
    QVERIFY(!Sitting::IsOpen("frmReport"));
    QCOMPARE(Sitting::Commands(), "bsrautev");
    QVERIFY(!Sitting::Control("frm3", "imgGameOver").isVisible());
    sitting.Expect({QMessageBox::Warning, "Player 1, Anna, you win the game!"});
    Sitting::Type("e");
    QCOMPARE(Sitting::Title("frm3"), "Vorlund - Anna wins");
    QVERIFY(Sitting::Control("frm3", "imgGameOver").isVisible());
    QCOMPARE(Sitting::Commands(), "");
    Sitting::Type("bsrautev");
    QCOMPARE(Sitting::Commands(), "");
    QVERIFY(Sitting::Ends([] { Sitting::CloseWindow("frm3"); }));
}

void WarTest::AComputerWinsInItsTurn() {
    GameState game = WithComputers(2);
    Give(game, 26, 0, 1);
    Give(game, 25, 1, 100);
    Sitting sitting(std::make_unique<SeededRandom>(3));
    sitting.Resume(game);
    bool stays = false;
    const auto tryToClose = [&stays] {
        stays = Sitting::ReportText().endsWith("Player 1 is now dead.\n") && Sitting::Commands().isEmpty();
        for (const char* window : {"frmReport", "frm3"}) {
            Sitting::CloseWindow(window);
            Sitting::Window(window).close();
            stays = stays && Sitting::IsOpen(window);
        }
    };
    sitting.Expect(
        {QMessageBox::Warning, "Player 2, CompPlayer2, wins the game!", QMessageBox::Ok, tryToClose});
    Sitting::Type("e");
    QVERIFY2(stays, "the report is shown behind the box, and neither it nor the board closes");
    QCOMPARE(Sitting::Title("frm3"), "Vorlund - CompPlayer2 wins");
    QVERIFY(Sitting::Control("frm3", "imgGameOver").isVisible());
    QCOMPARE(Sitting::MapFault(sitting.Game()), "");
    Sitting::Click("frmReport", "lblCont");
    QVERIFY(!Sitting::IsOpen("frmReport"));
    QCOMPARE(Sitting::Commands(), "");
    QVERIFY(Sitting::Ends([] { Sitting::CloseWindow("frm3"); }));
}

void WarTest::SuicideByAttack() {
    GameState game = NewGame(3);
    Give(game, 6, 0, 1);
    Give(game, 7, 1, 2);
    Give(game, 35, 2, 5);
    Sitting sitting(ByScript({Miss, Miss}));
    sitting.Resume(game);
    Sitting::Type("a7\t8\t1\n");
    QVERIFY(Sitting::ReportText().contains("The battle was unsuccessful... the enemy held off your attack."));
    QVERIFY(
        Sitting::ReportText().endsWith("You have killed yourself... you have no troops or tanks remaining."));
    QCOMPARE(Sitting::Text("frm3", "lblCntry(6)"), "(not seen)");
    Sitting::Press(Qt::Key_Return);
    QCOMPARE(Sitting::Commands(), "e");
    Sitting::Type("be");
    QVERIFY(!Sitting::IsOpen("frmBuy"));
    QCOMPARE(Sitting::Title("frm3"), "Vorlund - Ben's turn");
}

void WarTest::TwoComputersInARow() {
    GameState game = WithComputers(4);
    Give(game, 26, 0, 10);
    Give(game, 4, 1, 2);
    Bury(game, 2);  // skipped without a report
    Give(game, 40, 3, 2);
    Sitting sitting(std::make_unique<SeededRandom>(1));
    sitting.Resume(game);
    Sitting::Type("e");
    for (const int computer : {1, 3}) {
        const QString name = QString("CompPlayer%1").arg(computer + 1);
        QCOMPARE(Sitting::Title("frmReport"), "Computer player " + name + "'s status");
        QCOMPARE(Sitting::Text("frmReport", "lbl1"), "The computer did the following:");
        QCOMPARE(Sitting::ReportPicture(), computer);
        QCOMPARE(Sitting::Title("frm3"), "Vorlund - " + name + "'s turn");
        QCOMPARE(Sitting::Commands(), "");
        QCOMPARE(Sitting::MapFault(sitting.Game()), "");
        Sitting::Press(Qt::Key_Escape);
    }
    QVERIFY(Sitting::ReportText().startsWith("Vorlund - Upkeep\nUpkeep status for Player 1, Anna.\n"));
    QCOMPARE(Sitting::ReportPicture(), 0);
    Sitting::Press(Qt::Key_Return);
    QVERIFY(!Sitting::IsOpen("frmReport"));
    QCOMPARE(Sitting::Commands(), "bsrautev");
}

void WarTest::TheLastButOneCollapses() {
    GameState game = NewGame(2);
    Give(game, 6, 0, 10);
    Give(game, 7, 1, 10);
    game.PlayerAt(1).DebtTurns = 2;
    game.PlayerAt(1).Money = -500;
    Sitting sitting(NoLuck());
    sitting.Resume(game);
    Sitting::Type("e");
    QVERIFY(Sitting::ReportText().endsWith(
        "Your territories collapse due to prolonged periods of lack of funds."));
    QCOMPARE(Sitting::Text("frm3", "lblCntry(7)"), "(not seen)");
    Sitting::Press(Qt::Key_Return);
    QVERIFY(!Sitting::IsOpen("frmReport"));
    QCOMPARE(Sitting::Commands(), "e");
    sitting.Expect({QMessageBox::Warning, "Player 1, Anna, you win the game!"});
    Sitting::Type("e");
    QCOMPARE(Sitting::Commands(), "");
    QVERIFY(Sitting::Ends([] { Sitting::CloseWindow("frm3"); }));
}

void WarTest::NobodyWinsByASale() {
    GameState game = NewGame(2);
    Give(game, 6, 0, 3);
    Bury(game, 1);
    Sitting sitting(NoLuck());
    sitting.Resume(game);
    sitting.Expect({QMessageBox::Warning, "All players are dead, no one wins..."});
    Sitting::Type("s7\t3\n");
    QVERIFY(!Sitting::IsOpen("frmSell") && !Sitting::IsOpen("frmReport"));
    QCOMPARE(Sitting::Commands(), "");
    QCOMPARE(Sitting::Title("frm3"), "Vorlund - Anna's turn");
    QVERIFY(!Sitting::Control("frm3", "imgGameOver").isVisible());
    QCOMPARE(Sitting::MapFault(sitting.Game()), "");
    QVERIFY(Sitting::Ends([] { Sitting::CloseWindow("frm3"); }));
}

void WarTest::ComputersPlayOnAmongThemselves() {
    GameState game = WithComputers(3);
    Give(game, 6, 0, 1);
    Give(game, 7, 1, 30);
    Give(game, 35, 2, 30);
    Sitting sitting(std::make_unique<SeededRandom>(1));
    sitting.Resume(game);
    Sitting::Type("e");
    QVERIFY(Sitting::ReportText().contains("Player 1 is now dead.\n"));
    QString last;
    for (int turn = 0; turn < 4; ++turn) {
        Sitting::Click("frmReport", "lblCont");
        QVERIFY(Sitting::Title("frmReport") != last);
        QCOMPARE(Sitting::Commands(), "");
        last = Sitting::Title("frmReport");
    }
    sitting.Expect({QMessageBox::Question,
                    "Closing this game window will end the game.\nAre you sure you want to continue?",
                    QMessageBox::Yes});
    QVERIFY(Sitting::Ends([] { Sitting::CloseWindow("frm3"); }));
}

QTEST_MAIN(WarTest)
#include "war_test.moc"
