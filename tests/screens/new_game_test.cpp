#include <QTest>

#include "actions/buy.h"
#include "setup/new_game.h"
#include "setup/selection.h"
#include "state/world.h"
#include "tests/engine/table.h"
#include "tests/screens/hands.h"

using namespace vorlund;

namespace {

float ForDraw(int result, int faces) {
    return (static_cast<float>(result) + 0.5F) / static_cast<float>(faces);
}

void AnswerNames(const QStringList& names) {
    Sitting::Click("frm1", "lblPlay");
    Sitting::Click("frm2", QString("opt%1").arg(names.size()));
    Sitting::Click("frm2", "lblCont");
    for (int row = 0; row < names.size(); ++row) {
        Sitting::Fill("frm2", QString("txtN(%1)").arg(row), names[row]);
    }
}

void Select(const QString& number) {
    Sitting::Window("frmSelect");
    Sitting::Type(number + u'\n');
}

// The first thing in which the screens differ from what the rules have asked of the recorder.
QString Difference(Sitting& sitting, const Table& table) {
    const Recorder& seen = table.Seen;
    const auto shown = [](const std::string& text) {
        return QString::fromStdString(text).replace('\r', '\n');
    };
    if (sitting.Game() != table.Game) {
        return "the games differ";
    }
    if (Sitting::Title("frm3") != shown(seen.BoardTitle)) {
        return "the board's title is " + Sitting::Title("frm3");
    }
    if (Sitting::IsOpen("frmReport") != seen.ReportVisible) {
        return "the report is open or not";
    }
    const QString report =
        shown(seen.Shown.Title) + '\n' + shown(seen.Shown.Headline) + '\n' + shown(seen.Shown.Body);
    if (seen.ReportVisible && Sitting::ReportText() != report) {
        return "the report says " + Sitting::ReportText();
    }
    if (seen.ReportVisible && Sitting::ReportPicture() != seen.Picture.value_or(-1)) {
        return "the report's marker";
    }
    QString keys;
    for (const Command command : AllCommands) {
        if (seen.Commands->Has(command)) {
            keys += "bsrautev"[static_cast<int>(command)];
        }
    }
    if (Sitting::Commands() != keys) {
        return "commands are " + Sitting::Commands() + ", not " + keys;
    }
    return Sitting::MapFault(sitting.Game());
}

}  // namespace

class NewGameTest : public QObject {
    Q_OBJECT

private slots:
    void ThreeHumansPlayFiveRounds();
    void FivePlayersWithComputersPlayFiveRounds();
    void SelectionRejectsAndGoesOn();
    void NamesAreRefused_data();
    void NamesAreRefused();
    void TheNextRowsAfterARefusal();
    void ClosingAsks_data();
    void ClosingAsks();
};

void NewGameTest::ThreeHumansPlayFiveRounds() {
    const QStringList names{"Anna", "Bert", "Cleo"};
    const QList<int> homes{0, 5, 26};  // an oil field, a rich territory, a plain one
    std::vector<float> chance{ForDraw(1, 3)};
    chance.resize(16, ForDraw(0, 13));
    chance[8] = ForDraw(2, 13);  // Cleo's research in the third round
    Sitting sitting(ByScript(chance));
    AnswerNames(names);
    Sitting::Click("frm2", "lblCont");
    QVERIFY(!Sitting::IsOpen("frm1") && !Sitting::IsOpen("frm2"));
    QCOMPARE(Sitting::Title("frm3"), "Vorlund");
    QCOMPARE(Sitting::Commands(), "");
    QCOMPARE(Sitting::MapFault({}), "");
    QCOMPARE(Sitting::Text("frmSelect", "lbl1"), "Player 2, Bert, has been chosen to select first.");
    Select("6");
    QCOMPARE(Sitting::Text("frmSelect", "lbl1"),
             "Player 2 selected Western USA\nPlayer 3, Cleo, select a territory.");
    Select("27");
    QCOMPARE(Sitting::Text("frmSelect", "lbl1"),
             "Player 3 selected South Africa\nPlayer 1, Anna, select a territory.");
    QCOMPARE(Sitting::MapFault(sitting.Game()), "");
    Select("1");
    QVERIFY(!Sitting::IsOpen("frmSelect"));

    for (int turn = 0; turn < 15; ++turn) {
        const int player = (turn + 1) % 3;
        const int income = player == 1 ? 43 : 39;
        QCOMPARE(Sitting::Title("frm3"), QString("Vorlund - %1's turn").arg(names[player]));
        QCOMPARE(Sitting::ReportText(),
                 QString("Vorlund - Upkeep\n"
                         "Upkeep status for Player %1, %2.\n"
                         "Upkeep for Troops and Factories: $21\n"
                         "Upkeep for Tanks: 0 barrels\n\n"
                         "Money collected from territories: $%3\n"
                         "Remaining money after expenses: $%4\n\n")
                         .arg(player + 1)
                         .arg(names[player])
                         .arg(income)
                         .arg(income - 21) +
                     (turn == 7 ? "Your nuclear development team has researched a nuclear bomb.\n\n" : ""));
        QCOMPARE(Sitting::ReportPicture(), turn == 0 ? -1 : player);
        QCOMPARE(Sitting::Commands(), "");
        QCOMPARE(Sitting::MapFault(sitting.Game()), "");
        QCOMPARE(Sitting::Text("frm3", QString("lblCntry(%1)").arg(homes[player])), "10/0");
        switch (turn % 4) {  // every way to close a report
            case 0:
                Sitting::Click("frmReport", "lblCont");
                break;
            case 1:
                Sitting::Press(Qt::Key_Enter, Qt::KeypadModifier);
                break;
            case 2:
                Sitting::Press(Qt::Key_Escape);
                break;
            default:
                Sitting::CloseWindow("frmReport");
        }
        QVERIFY(!Sitting::IsOpen("frmReport"));
        QCOMPARE(Sitting::Commands(), turn < 3 ? "bsrutev" : "bsrautev");
        if (turn < 14) {
            Sitting::Type(turn % 2 == 0 ? "e" : "E");
        }
    }
    Sitting::Type("t");
    QCOMPARE(Sitting::Text("frmStatus", "lblMoney"), "$190");
    QCOMPARE(Sitting::Text("frmStatus", "lblOil"), "75");
}

void NewGameTest::FivePlayersWithComputersPlayFiveRounds() {
    constexpr std::uint32_t seed = 7;
    Table table(seed);
    Sitting sitting(std::make_unique<SeededRandom>(seed));
    AnswerNames({"Anna", "cOmP", "Cleo", "COMPUTER", ""});
    Sitting::Click("frm2", "cmp(4)");
    QCOMPARE(Sitting::Text("frm2", "txtN(4)"), "Computer");
    QVERIFY(!Sitting::Control("frm2", "txtN(4)").isEnabled());
    Sitting::Click("frm2", "lblCont");

    InitWorld(table.Game);
    table.Seen.Commands = CommandSet::None();
    table.Game.NumPlayers = 5;
    const std::vector<std::string> names{"Anna", "comp", "Cleo", "comp", "comp"};
    QVERIFY(!EnterNames(table.Game, names));
    Selection selection(table.Game, table.Chance);
    const std::string opening = selection.Open();
    QCOMPARE(Sitting::Text("frmSelect", "lbl1"), QString::fromStdString(opening));
    for (const char* number : {"7", "26"}) {
        Select(number);
        selection.Entr(number);
    }
    table.Turn.OpenFirstTurn();
    QCOMPARE(Difference(sitting, table), "");

    QStringList computers;
    int humanTurns = 0;
    while (humanTurns < 10) {
        Sitting::Press(Qt::Key_Return);
        table.Seen.ReportVisible = table.Turn.ReportClosed();
        QCOMPARE(Difference(sitting, table), "");
        if (!table.Seen.ReportVisible) {
            ++humanTurns;
            const TradeEntries order{table.Game.CurrentPlayer == 0 ? "7" : "26", "2", "", ""};
            Sitting::Type(QString("b%1\t2\n").arg(order.Territory.c_str()));
            table.Seen.ShowReport(std::get<Report>(Buy(table.Game, order)), {});
            QCOMPARE(Difference(sitting, table), "");
            Sitting::Click("frm3", "lblEndTurn");
            table.Turn.EndTurn();
            QCOMPARE(Difference(sitting, table), "");
        }
        if (table.Game.Current().IsComputer) {
            computers << Sitting::Text("frmReport", "lbl2");
        }
    }
    QVERIFY(computers.size() >= 12);
    QVERIFY(computers.front().startsWith("Moved forces into "));
}

void NewGameTest::SelectionRejectsAndGoesOn() {
    // The draw of the first selector falls on the computer at first. The computer itself draws a taken
    // territory, a neighbour of one, and a free one.
    Sitting sitting(ByScript(
        {ForDraw(1, 3), ForDraw(2, 3), ForDraw(13, 42), ForDraw(1, 42), ForDraw(26, 42), ForDraw(0, 13)}));
    AnswerNames({"Anna", "comp", "Cleo"});
    Sitting::Press(Qt::Key_Return);
    const auto message = [] { return Sitting::Text("frmSelect", "lbl1"); };
    QCOMPARE(message(), "Player 3, Cleo, has been chosen to select first.");
    const GameState before = sitting.Game();
    for (const char* typed : {"", "0", "43", "ab", "-1", " ", "99"}) {
        Select(typed);
        QCOMPARE(message(), "Invalid territory selection.\nPlayer 3, Cleo, select again.");
        QCOMPARE(Sitting::Beeps(), 1);
        QCOMPARE(Sitting::Text("frmSelect", "txtNum"), "");
        QVERIFY(sitting.Game() == before);
    }
    Sitting::Type("140");  // the field takes two characters
    QCOMPARE(Sitting::Text("frmSelect", "txtNum"), "14");
    Sitting::Click("frmSelect", "lblGo");
    QCOMPARE(message(), "Player 3 selected Brazilian Territory\nPlayer 1, Anna, select a territory.");
    Select("14");
    QCOMPARE(message(), "Territory already occupied.\nPlayer 1, Anna, select again.");
    QCOMPARE(Sitting::Beeps(), 1);
    Sitting::Press(Qt::Key_Escape);
    QVERIFY(Sitting::IsOpen("frmSelect"));
    Select("1");
    QVERIFY(!Sitting::IsOpen("frmSelect"));
    QCOMPARE(sitting.Game().TerritoryAt(26).Owner, 1);
    QVERIFY(Sitting::ReportText().startsWith("Vorlund - Upkeep\nUpkeep status for Player 3, Cleo.\n"));
    QCOMPARE(Sitting::ReportPicture(), -1);
    QCOMPARE(Sitting::Title("frm3"), "Vorlund - Cleo's turn");
    QCOMPARE(Sitting::MapFault(sitting.Game()), "");
}

void NewGameTest::NamesAreRefused_data() {
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("prompt");
    QTest::addColumn<int>("beeps");
    const QString lost = "Player %1's name cannot be saved; enter another.";
    QTest::addRow("the first and third of four are missing")
        << QStringList{"", "Bert", "", "Dora"} << "Enter a name for Player 3." << 2;
    QTest::addRow("a pasted name has a line end") << QStringList{"An\nna", "Bert"} << lost.arg(1) << 1;
    QTest::addRow("a pasted name has a return") << QStringList{"Anna", "Be\r\nrt"} << lost.arg(2) << 1;
    QTest::addRow("letters that a saved game does not hold")
        << QStringList{QString::fromUtf8("\u65E5\u672C"), "Bert"} << lost.arg(1) << 1;
    QTest::addRow("a double quote first") << QStringList{"\"Anna", "Bert"} << lost.arg(1) << 1;
    QTest::addRow("no human is left")
        << QStringList{"computer", "Comp"} << "You must have at least one human player." << 0;
}

void NewGameTest::NamesAreRefused() {
    QFETCH(QStringList, names);
    Sitting sitting(NoLuck());
    AnswerNames(names);
    Sitting::Click("frm2", "lblCont");
    QTEST(Sitting::Text("frm2", "lbl1"), "prompt");
    QTEST(Sitting::Beeps(), "beeps");
    QVERIFY(Sitting::IsOpen("frm2") && !Sitting::IsOpen("frm3"));
    QCOMPARE(Sitting::Text("frm2", QString("lblP(%1)").arg(names.size())), "(not seen)");
}

void NewGameTest::TheNextRowsAfterARefusal() {
    Sitting sitting(NoLuck());
    AnswerNames({"", "  J\u00F6rg, \u20AC"});
    Sitting::Click("frm2", "cmp(0)");
    Sitting::Click("frm2", "cmp(0)");
    QCOMPARE(Sitting::Text("frm2", "txtN(0)"), "");
    Sitting::Fill("frm2", "txtN(0)", "Anastasia the Great");  // cut to twelve characters
    Sitting::Press(Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(Sitting::Text("frmSelect", "lbl1"), "Player 1, Anastasia th, has been chosen to select first.");
    QCOMPARE(sitting.Game().PlayerAt(1).Name, "  J\u00F6rg, \u20AC");
}

void NewGameTest::ClosingAsks_data() {
    QTest::addColumn<QString>("window");
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("question");
    QTest::addRow("the new game") << "frm2" << int(QMessageBox::NoIcon)
                                  << "Closing this window will terminate your new game.\n"
                                     "Press 'Yes' to exit or 'No' to return.";
    QTest::addRow("the selection") << "frmSelect" << int(QMessageBox::NoIcon)
                                   << "Closing this window will terminate your new game.\n"
                                      "Press 'yes' to exit or 'no' to return.";
    QTest::addRow("the board") << "frm3" << int(QMessageBox::Question)
                               << "Closing this game window will end the game.\n"
                                  "Are you sure you want to continue?";
}

void NewGameTest::ClosingAsks() {
    QFETCH(QString, window);
    QFETCH(int, icon);
    QFETCH(QString, question);
    Sitting sitting(NoLuck());
    AnswerNames({"Anna", "Bert"});
    if (window != "frm2") {
        Sitting::Press(Qt::Key_Return);
        Sitting::Window("frmSelect");
    }
    sitting.Expect({QMessageBox::Icon(icon), question, QMessageBox::No});
    Sitting::CloseWindow(window);
    QVERIFY(Sitting::IsOpen(window));
    sitting.Expect({QMessageBox::Icon(icon), question, QMessageBox::Yes});
    QVERIFY(Sitting::Ends([&window] { Sitting::CloseWindow(window); }));
}

QTEST_MAIN(NewGameTest)
#include "new_game_test.moc"
