// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QHelpEvent>
#include <QListWidget>
#include <QPainter>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>
#include <QWindow>

#include "actions/battle.h"
#include "actions/buy.h"
#include "actions/sell.h"
#include "actions/strike.h"
#include "actions/transport.h"
#include "actions/upgrade.h"
#include "tests/engine/games.h"
#include "tests/screens/driver.h"
#include "ui/windows/frm3.h"
#include "ui/windows/map_lines.h"

// The board's map as an input: hit test, lit territories, where the focus goes, quantities without typing.

namespace vorlund {
namespace {

constexpr QPoint Atlantic(250, 200);

QPoint MarkerOf(std::size_t number) {
    return {World[number - 1].MapX, World[number - 1].MapY};
}

GameState AnnaAndBen(const std::string& more = "") {
    return NewGame(2, "7 Anna 12/1F; 16 Ben 1/0D; Anna Money 118 Oil 33" + more);
}

frm3& Board() {
    return static_cast<frm3&>(Window("frm3"));
}

TEST(Map, EveryNumberMarkerIconAndCountBelongsToItsTerritory) {
    GameState game = NewGame(5);
    for (int t = 0; t < NumTerritories; ++t) {
        Give(game, t, t % 5, 999, 99);
        GiveFactory(game, t);
    }
    std::vector<std::pair<int, QPoint>> places;  // with the number of the territory
    const QImage printed = LoadPicture("map", 1, 1).toImage();
    for (const MapLine& sign : ReadMapLines("signs.txt", 1)) {
        const QRect box = sign.Points.boundingRect().toAlignedRect().adjusted(1, 1, -1, -1);
        int light = 0;
        for (int i = 0; i < box.width() * box.height(); ++i) {
            light += qGray(printed.pixel(box.x() + i % box.width(), box.y() + i / box.width())) > 200 ? 1 : 0;
        }
        const bool isNumber = places.size() < 5 * NumTerritories;
        EXPECT_TRUE(!isNumber || 3 * light > box.width() * box.height())
            << "no number " << sign.Territories[0];
        for (const QPoint place :
             {box.center(), box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()}) {
            places.emplace_back(sign.Territories[0], place);
        }
    }
    ASSERT_EQ(places.size(), 5 * (NumTerritories + 6));
    Sitting sitting;
    sitting.Resume(game);
    for (int t = 0; t < NumTerritories; ++t) {
        for (const char* name : {"imgCntry", "imgExtra", "lblCntry"}) {
            QWidget& part = Control("frm3", QString("%1(%2)").arg(name).arg(t));
            const auto* count = dynamic_cast<const CountLabel*>(&part);
            const QRect seen = (count != nullptr ? count->Plate() : part.rect()).translated(part.pos());
            for (const QPoint place : {seen.center(), seen.bottomLeft(), seen.topRight()}) {
                places.emplace_back(t + 1, place);
            }
        }
    }
    Type("b");
    for (const auto& [number, place] : places) {
        SCOPED_TRACE(QString("%1 at %2,%3").arg(number).arg(place.x()).arg(place.y()).toStdString());
        Click("frm3", place);
        EXPECT_EQ(Text("frmBuy", "txtC1"), QString::number(number));
        QHelpEvent hover(QEvent::ToolTip, place, Board().mapToGlobal(place));
        QApplication::sendEvent(&Board(), &hover);
        EXPECT_TRUE(QToolTip::text().contains(QString(">%1 ").arg(number))) << QToolTip::text().toStdString();
    }
}

/// The territory number of each pixel, 0 at its edges and at sea.
QImage InnerLand() {
    const TerritoryMap map;
    QImage land(frm3::Size, QImage::Format_Grayscale8);
    land.fill(0);
    QPainter painter(&land);
    for (int t = 0; t < NumTerritories; ++t) {
        painter.fillPath(map.Outline(t), QColor(t + 1, t + 1, t + 1));
    }
    painter.end();
    QImage inner = land;
    inner.fill(0);
    for (int y = 1; y + 1 < land.height(); ++y) {
        for (int x = 1; x + 1 < land.width(); ++x) {
            const auto same = [&](int dx, int dy) { return land.pixel(x + dx, y + dy) == land.pixel(x, y); };
            if (same(1, 0) && same(-1, 0) && same(0, 1) && same(0, -1)) {
                inner.scanLine(y)[x] = land.constScanLine(y)[x];
            }
        }
    }
    return inner;
}

/// The territories whose land is painted otherwise than without lit ones.
TerritorySet Lit() {
    static const QImage land = InnerLand();
    const QImage seen = Board().grab().toImage();
    Board().ShowRims(Rim::Lit, {});
    const QImage plain = Board().grab().toImage();
    Board().RefreshMap();
    std::array<int, NumTerritories + 1> changed{};  // pixels, by number
    for (int i = 0; i < land.width() * land.height(); ++i) {
        const QPoint place(i % land.width(), i / land.width());
        changed.at(static_cast<std::size_t>(qGray(land.pixel(place)))) +=
            seen.pixel(place) != plain.pixel(place) ? 1 : 0;
    }
    constexpr int atCorners = 10;  // where a neighbour's rim may reach over the edge
    return TerritoriesWhere([&](int t) { return changed.at(static_cast<std::size_t>(t + 1)) > atCorners; });
}

TEST(Map, TheTerritoriesThatTheFocusedFieldCouldTakeAreLit) {
    SeededRandom random(3);
    for (int i = 0; i < 5; ++i) {
        GameState game = RandomPosition(random);
        game.Current().FirstTurn = false;
        game.Current().MovesLeft = i == 0 ? 0 : 2;
        game.Current().AttacksLeft = 1;
        const std::string from = RandomRoute(game, random).From.substr(0, 2);
        const QString source = QString::fromStdString(from);
        const std::vector<std::pair<QString, TerritorySet>> rows{
            {"b", BuyTerritories(game)},         {"b1\t", BuyTerritories(game)},
            {"s", SellTerritories(game)},        {"r", MoveSources(game)},
            {"r\t", MoveDestinations(game, "")}, {"r" + source + "\t", MoveDestinations(game, from)},
            {"a", AttackSources(game)},          {"a" + source + "\t2\t", AttackDestinations(game, from)},
            {"a\t\t\t\t", StrikeTargets(game)},  {"u", FactorySites(game)},
            {"u\t", DefenseSites(game)},         {"v", {}}};
        Sitting sitting;
        sitting.Resume(game);
        for (const auto& [keys, due] : rows) {
            Type(keys);
            EXPECT_EQ(Lit(), due) << keys.toStdString();
            Type("\033");
            EXPECT_EQ(Lit(), TerritorySet()) << keys.toStdString();
        }
    }
    Sitting sitting;
    Type(" \nAnna\t\tBen\n");
    Window("frmSelect");
    Type("7\n");
    EXPECT_EQ(Lit(), ~TerritorySet(1ULL << 6));
    Type("8\n");
    EXPECT_EQ(Lit(), TerritorySet());
}

TEST(Map, LitTerritoriesFollowTheTextAndTheGame) {
    Sitting sitting;
    sitting.Resume(NewGame(2, "7 Anna 12/1F; 8 Anna 2/0; 1 Ben 1/0"));
    Type("u");
    EXPECT_EQ(Lit(), TerritorySet(1ULL << 7));
    Type("\033r\t");
    const TerritorySet all = Lit();
    Click("frmTransport", "txtC1");
    Type("8\t");
    EXPECT_EQ(Lit(), MoveDestinations(sitting.Game(), "8"));
    EXPECT_NE(Lit(), all);
    static_cast<Field&>(Control("frmTransport", "txtC1")).setText("7");
    EXPECT_EQ(Lit(), MoveDestinations(sitting.Game(), "7"));
    Type("6\t1\n1\n");
    EXPECT_EQ(Lit(), TerritorySet()) << "no move is left";
}

TEST(Map, AClickFillsInTheFocusedTerritoryFieldAndTheFocusGoesOn) {
    const std::vector<std::array<QString, 3>> rows{
        {"b", "txtC1", "txtTroops"},   {"s\t", "txtC1", "txtTroops"},     {"r", "txtC1", "txtC2"},
        {"r\t", "txtC2", "txtTroops"}, {"r\t\t\t", "txtC2", "txtTroops"}, {"a", "txtC1", "txtC2"},
        {"a\t", "txtC2", "txtTroops"}, {"a\t\t\t\t", "txtN", "txtN"},     {"u", "txtC1", "txtC1"},
        {"u\t", "txtC2", "txtC2"},     {"", "txtNum", "txtNum"}};
    Sitting sitting;
    sitting.Resume(AnnaAndBen());
    for (const auto& [keys, field, next] : rows) {
        SCOPED_TRACE(keys.toStdString());
        std::unique_ptr<Sitting> newGame;
        if (keys.isEmpty()) {
            newGame = std::make_unique<Sitting>();
            Type(" \nAnna\t\tBen\n");
            Window("frmSelect");
        }
        Type(keys);
        const QString dialog = QWidget::find(FrontWindow().winId())->objectName();
        for (const QPoint place : {MarkerOf(35), Atlantic}) {  // at sea there is no territory
            Board().activateWindow();
            Click("frm3", place);
            EXPECT_EQ(Text(dialog, field), "35");
            EXPECT_EQ(FrontWindow().objectName(), dialog + "Window");
            EXPECT_EQ(Window(dialog).focusWidget()->objectName(), next);
        }
        Type("4");
        EXPECT_EQ(Text(dialog, next), "4") << "typing replaces what is there";
        Type("\033");
    }
}

TEST(Map, AClickAtSeaLeavesTheFocusWhereItIs) {
    Sitting sitting;
    sitting.Resume(AnnaAndBen());
    Type("\t");
    Click("frm3", Atlantic);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "lblBuy");
    Type("v");
    Board().activateWindow();
    Click("frm3", MarkerOf(7));  // which the save screen does not ask for
    Type("x");
    EXPECT_EQ(Text("frmSave", "txtSave"), "x");
}

TEST(Map, ThePointerIsAHandOverWhatCanBeClicked) {
    Sitting sitting;
    sitting.Resume(AnnaAndBen());
    const auto shapeAt = [](QPoint place) {
        PointAt("frm3", place);
        const QWidget* child = Board().childAt(place);
        return (child != nullptr ? child : &Board())->cursor().shape();
    };
    const QPoint buy = Control("frm3", "lblBuy").geometry().center();
    EXPECT_EQ(shapeAt(MarkerOf(7)), Qt::ArrowCursor);
    EXPECT_EQ(shapeAt(buy), Qt::PointingHandCursor);
    Type("r");
    EXPECT_EQ(shapeAt(buy), Qt::ArrowCursor);
    const QImage before = Board().grab().toImage();
    EXPECT_EQ(shapeAt(MarkerOf(35)), Qt::PointingHandCursor);
    EXPECT_NE(Board().grab().toImage(), before) << "the territory under the pointer is outlined";
    EXPECT_EQ(shapeAt(Atlantic), Qt::ArrowCursor);
    EXPECT_EQ(Board().grab().toImage(), before);
    PointAt("frm3", MarkerOf(35));
    Type("\033");
    EXPECT_EQ(Board().cursor().shape(), Qt::ArrowCursor);
}

void Turn(const QString& window, const QString& control, QPoint angle, Qt::KeyboardModifiers modifiers = {}) {
    QWidget& field = Control(window, control);
    const QPointF middle = field.rect().center();
    QWheelEvent event(middle, field.mapToGlobal(middle), {}, angle, {}, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&field, &event);
}

TEST(Map, QuantitiesChangeByWheelAndArrowKeys) {
    Sitting sitting;
    sitting.Resume(AnnaAndBen());
    Type("b");
    const auto troops = [] { return Text("frmBuy", "txtTroops"); };
    Turn("frmBuy", "txtC1", {0, 120});
    EXPECT_EQ(Text("frmBuy", "txtC1"), "") << "no quantity";
    Click("frm3", MarkerOf(7));
    struct Step {
        QPoint Angle;
        Qt::KeyboardModifiers Modifiers;
        const char* Then;
    };
    for (const Step& step : {Step{{0, -120}, {}, ""},
                             {{0, 240}, {}, "2"},
                             {{0, 60}, {}, "2"},
                             {{0, 60}, {}, "3"},
                             {{0, 120}, Qt::ShiftModifier, "11"},
                             {{0, 120}, {}, "11"},
                             {{120, 0}, {}, "11"},
                             {{-120, 0}, Qt::ShiftModifier, "1"}}) {
        Turn("frmBuy", "txtTroops", step.Angle, step.Modifiers);
        EXPECT_EQ(troops(), step.Then);
    }
    Press(Qt::Key_Up);
    EXPECT_EQ(troops(), "2");
    Press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(troops(), "11");
    Press(Qt::Key_Down, Qt::ShiftModifier);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(troops(), "0");
    Type("8");
    EXPECT_EQ(troops(), "8") << "typing replaces it";
    const auto limit = [](const char* window, const char* field) {
        QWidget& quantity = Control(window, field);
        EXPECT_EQ(quantity.accessibleDescription(), quantity.toolTip());
        return quantity.toolTip();
    };
    EXPECT_EQ(limit("frmBuy", "txtTroops"), "at most 11 with $118");
    EXPECT_EQ(limit("frmBuy", "txtOil"), "at most 114 with $38");
    Type("\033r");
    EXPECT_EQ(limit("frmTransport", "txtTroops"), "Enter a territory of yours first.");
    Type("7\t6\t2\t1\n");
    EXPECT_EQ(limit("frmTransport", "txtTroops"), "10 troops in 7");
    Type("\033a7");
    EXPECT_EQ(limit("frmAttack", "txtTanks"), "0 tanks in 7");
    Type("\033s");
    EXPECT_EQ(limit("frmSell", "txtOil"), "33 barrels");
}

const GameState TwoEmpires =
    NewGame(2, "7 Anna 12/1F; 8 Ben 3/0F; 19 Ben 5/0F; Anna Money 300; Ben Money 400");

const std::string AfterThreeTurns =
    "6 Anna 3/0; 7 Anna 1/3F; 8 nobody 0/0; 19 Ben 5/0FD; Anna Money 355 Oil 12 Tanks 3 Troops 4; Ben "
    "Factories 1 Money 356 Troops 5";

TEST(Map, ThreeTurnsByMouseAlone) {
    Sitting sitting;
    sitting.Put("a.vrs", TwoEmpires);
    Click("frm1", "lblLoad");
    auto& list = static_cast<QListWidget&>(Control("frmLoad", "flb1"));
    Click("frmLoad", list.viewport()->mapTo(list.window(), list.visualItemRect(list.item(0)).center()));
    Click("frmLoad", "lblGo(0)");
    const auto map = [](std::size_t number) { Click("frm3", MarkerOf(number)); };
    const auto turn = [](const QString& window, const QString& field, int notches) {
        Turn(window, field, {0, 120 * notches});
    };
    Click("frm3", "lblBuy");
    map(7);
    turn("frmBuy", "txtTroops", 5);
    turn("frmBuy", "txtTanks", 2);
    Click("frmBuy", "lblGo");
    Click("frmReport", "lblCont");
    Click("frm3", "lblTransport");
    map(7);
    map(6);
    turn("frmTransport", "txtTroops", 3);
    Click("frmTransport", "lblGo");
    Close("frmTransport");
    Click("frm3", "lblAttack");
    map(7);
    map(8);
    turn("frmAttack", "txtTroops", 99);
    turn("frmAttack", "txtTroops", -1);
    Click("frmAttack", "lblAttack");
    EXPECT_TRUE(ReportText().startsWith("The battle was successful"));
    Click("frmReport", "lblCont");
    Click("frm3", "lblEndTurn");
    Click("frmReport", "lblCont");
    Click("frm3", "lblUpgrade");
    map(19);
    Click("frmUpgrade", "txtC2");
    map(19);
    Click("frmUpgrade", "lblGo5");
    Close("frmUpgrade");
    Click("frm3", "lblEndTurn");
    Click("frmReport", "lblCont");
    Click("frm3", "lblSell");
    map(8);
    turn("frmSell", "txtTroops", 13);
    EXPECT_EQ(Click("frmSell", "lblGo"), "Vorlund - Anna's turn [bsrautev] | Vorlund - Sell");
    Click("frmReport", "lblCont");
    EXPECT_EQ(Click("frm3", "lblEndTurn"), "Vorlund - Ben's turn [] | Vorlund - Upkeep");
    EXPECT_EQ(Changes(TwoEmpires, sitting.Game()), AfterThreeTurns);
    EXPECT_EQ(MapFault(sitting.Game()), "");
}

TEST(Map, ThreeTurnsByKeysAlone) {
    Sitting sitting;
    sitting.Put("a.vrs", TwoEmpires);
    Type("\t ");
    Press(Qt::Key_Down);
    Type("\n");
    const auto up = [](int times) {
        for (int i = 0; i < times; ++i) {
            Press(Qt::Key_Up);
        }
    };
    Type("b7\t");
    up(5);
    Type("\t");
    up(2);
    Type("\n\nr7\t6\t");
    up(3);
    Type("\n\033a7\t8\t");
    for (int i = 0; i < 2; ++i) {
        Press(Qt::Key_Up, Qt::ShiftModifier);
    }
    Press(Qt::Key_Down);
    Type("\n\ne\nu\t19\n\033e\ns8\t");
    up(13);
    Type("\n\ne");
    EXPECT_EQ(Changes(TwoEmpires, sitting.Game()), AfterThreeTurns);
}

}  // namespace
}  // namespace vorlund
