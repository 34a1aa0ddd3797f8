#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include "tests/rules/small_worlds.h"
#include "tests/screens/hands.h"
#include "ui/territory_map.h"

using namespace vorlund;

namespace {

constexpr QPoint Atlantic(250, 200);

QPoint MarkerOf(int number) {
    static const GameState world = NewGame(2);
    return {world.TerritoryAt(number - 1).MapX, world.TerritoryAt(number - 1).MapY};
}

GameState TwoPlayers() {
    GameState game = NewGame(2);
    game.PlayerAt(0).Name = "<b>Anna";
    game.PlayerAt(0).HasNuke = true;
    Give(game, 6, 0, 12, 1);
    GiveFactory(game, 6);
    Give(game, 15, 1, 1, 0);
    game.TerritoryAt(15).HasDefense = true;
    return game;
}

// The tooltip that comes up when the pointer rests there; empty when none does.
QString TipAt(QPoint place) {
    QWidget& board = Sitting::Window("frm3");
    QHelpEvent rest(QEvent::ToolTip, place, board.mapToGlobal(place));
    QCoreApplication::sendEvent(&board, &rest);
    const bool gone = QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 500);
    return gone ? QString() : QToolTip::text();
}

}  // namespace

class MapHelpTest : public QObject {
    Q_OBJECT

private slots:
    static void APlaceBelongsToTheShapeThatHoldsIt_data();
    static void APlaceBelongsToTheShapeThatHoldsIt();
    static void TooltipsTellAllOfATerritory();
    static void TooltipsOfCommands();
    static void AClickTypesTheNumber_data();
    static void AClickTypesTheNumber();
};

void MapHelpTest::APlaceBelongsToTheShapeThatHoldsIt_data() {
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<int>("number");
    for (int number = 1; number <= NumTerritories; ++number) {
        QTest::addRow("the marker of territory %d", number) << MarkerOf(number) << number;
    }
    QTest::addRow("the open sea") << Atlantic << 0;
    QTest::addRow("the sea between Japan's islands and the mainland") << QPoint(620, 118) << 0;
    QTest::addRow("Western Africa, above Northern Africa's southern edge") << QPoint(310, 174) << 23;
    QTest::addRow("India, west of the Middle East's eastern edge") << QPoint(494, 166) << 37;
    QTest::addRow("the command bar") << QPoint(157, 445) << 0;
}

void MapHelpTest::APlaceBelongsToTheShapeThatHoldsIt() {
    QFETCH(QPoint, place);
    QFETCH(int, number);
    static const TerritoryMap map;
    QCOMPARE(map.At(place).value_or(-1) + 1, number);
}

void MapHelpTest::TooltipsTellAllOfATerritory() {
    Sitting sitting(NoLuck());
    sitting.Resume(TwoPlayers());
    const QString tip = "<p style='white-space:pre'>%1</p>";
    QCOMPARE(TipAt(MarkerOf(7)),
             tip.arg("7 Midwest USA\n&lt;b&gt;Anna (Player 1), 12 troops, 1 tank, factory\n"
                     "Value 7, oil field\nNeighbours: 2 Vancouver Territory, "
                     "3 Montreal Territory, 6 Western USA,\n8 Eastern USA, 9 Mexico"));
    QCOMPARE(TipAt(MarkerOf(16)), tip.arg("16 England\nBen (Player 2), 1 troop, 0 tanks, defense\nValue 6\n"
                                          "Neighbours: 5 Greenland, 18 French Territory"));
    QCOMPARE(TipAt(MarkerOf(35)),
             tip.arg("35 Japan\nheld by nobody\nValue 7\nNeighbours: 34 Manchurian Territory"));
    QCOMPARE(TipAt(Atlantic), QString());
}

void MapHelpTest::TooltipsOfCommands() {
    GameState game = TwoPlayers();
    game.PlayerAt(0).FirstTurn = true;
    game.PlayerAt(0).MovesLeft = 0;
    Sitting sitting(NoLuck());
    sitting.Resume(game);
    const auto tip = [](const QString& window, const QString& command) {
        return Sitting::Control(window, command).toolTip();
    };
    QCOMPARE(tip("frm3", "lblBuy"), "Key: B");
    QCOMPARE(tip("frm3", "lblAttack"), "Nobody attacks in their first turn.");
    Sitting::Type("r");
    QCOMPARE(tip("frmTransport", "lblGo"), "You have no move left this turn.");
    QCOMPARE(tip("frm3", "lblBuy"), "Another window wants to be closed first.");
    Sitting::Press(Qt::Key_Escape);
    QCOMPARE(tip("frm3", "lblBuy"), "Key: B");
    Sitting::Type("u");
    QCOMPARE(tip("frmUpgrade", "lblGo2"), "Key: Alt+2");
}

void MapHelpTest::AClickTypesTheNumber_data() {
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("next");
    QTest::addRow("buying") << "b"
                            << "frmBuy"
                            << "txtC1"
                            << "txtC1";
    QTest::addRow("selling, from the troops on") << "s\t"
                                                 << "frmSell"
                                                 << "txtC1"
                                                 << "txtC1";
    QTest::addRow("a move goes on to where to") << "r"
                                                << "frmTransport"
                                                << "txtC1"
                                                << "txtC2";
    QTest::addRow("where to, from the tanks on") << "r\t\t\t"
                                                 << "frmTransport"
                                                 << "txtC2"
                                                 << "txtC2";
    QTest::addRow("an attack goes on to its aim") << "a"
                                                  << "frmAttack"
                                                  << "txtC1"
                                                  << "txtC2";
    QTest::addRow("the bomb's aim stays") << "a\t\t\t\t"
                                          << "frmAttack"
                                          << "txtN"
                                          << "txtN";
    QTest::addRow("a factory stays") << "u"
                                     << "frmUpgrade"
                                     << "txtC1"
                                     << "txtC1";
    QTest::addRow("a defense stays") << "u\t"
                                     << "frmUpgrade"
                                     << "txtC2"
                                     << "txtC2";
}

void MapHelpTest::AClickTypesTheNumber() {
    QFETCH(QString, keys);
    QFETCH(QString, window);
    QFETCH(QString, field);
    QFETCH(QString, next);
    Sitting sitting(NoLuck());
    sitting.Resume(TwoPlayers());
    Sitting::Type(keys);
    Sitting::Window(window);
    for (const int number : {35, 0}) {  // the second click falls into the sea and does nothing
        QTest::mouseClick(Sitting::Window("frm3").windowHandle(), Qt::LeftButton, {},
                          number == 0 ? Atlantic : MarkerOf(number));
        QCOMPARE(Sitting::Text(window, field), "35");
        QCOMPARE(QApplication::focusWidget(), &Sitting::Control(window, next));
    }
}

QTEST_MAIN(MapHelpTest)
#include "map_help_test.moc"
