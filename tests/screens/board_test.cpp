// SPDX-License-Identifier: MIT
#include <QAccessible>
#include <QRegularExpression>
#include <QTest>
#include <map>
#include <set>

#include "tests/engine/games.h"
#include "tests/screens/driver.h"
#include "ui/parts/placement.h"
#include "ui/windows/frm3.h"
#include "ui/windows/game_navigation.h"

// What the board tells of the war beside its map: the roster, the rings of what has changed, and windows that
// leave the map free.

namespace vorlund {
namespace {

/// What a screen reader says of the visible cells "player" or "treasury" of the roster.
QString Aloud(const QString& cells) {
    QCoreApplication::processEvents();
    QStringList said;
    for (RosterCell* cell : Window("frm3").findChildren<RosterCell*>(QRegularExpression("^" + cells))) {
        if (cell->isVisible()) {
            QAccessibleInterface& spoken = *QAccessible::queryAccessibleInterface(cell);
            const QString details = spoken.text(QAccessible::Description);
            said << spoken.text(QAccessible::Name) + (details.isEmpty() ? "" : ", " + details);
        }
    }
    return said.join(" | ");
}

TEST(Roster, TellsWhoIsWhoAfterEveryKindOfDeath) {
    const std::string world =
        "7 Anna 99/9F; 8 Ben 1/0; 36 Cleo 5/0; Anna Money 1000 HasNuke 1; Cleo IsComputer 1";
    const QString anna = "Anna, player 1, 1 territory, on turn";
    const QString ben = " | Ben, player 2, 1 territory";
    const QString cleo = " | Cleo, player 3, computer, 1 territory";
    const QString treasury =
        "Money: $1000 | Oil: 0 barrels | Moves left: 2 | Attacks left: 2 | Nuclear bomb: ready";
    struct Row {
        const char* Case;
        std::string World;
        QString Keys;
        QString Players;
        QString Treasury;
    };
    const std::vector<Row> rows{
        {"nobody", world, "", anna + ben + cleo, treasury},
        {"nobody, in a dialog", world, "r7\t6\t9\n", "Anna, player 1, 2 territories, on turn" + ben + cleo,
         QString(treasury).replace("Moves left: 2", "Moves left: 1")},
        {"nobody, in the first turn", world + "Anna FirstTurn 1", "", anna + ben + cleo,
         QString(treasury).replace("Attacks left: 2", "Attacks left: not yet")},
        {"nobody, when the turn is over", world, "e",
         "Anna, player 1, 1 territory | Ben, player 2, 1 territory, on turn" + cleo, ""},
        {"bombed, which kills nobody", world, "a\t\t\t\t8\n", anna + ben + cleo,
         QString(treasury).replace("ready", "none")},
        {"conquered", world, "a7\t8\t90\n",
         "Anna, player 1, 2 territories, on turn | Ben, player 2, dead" + cleo,
         QString(treasury).replace("Attacks left: 2", "Attacks left: 1")},
        {"a computer, conquered", "7 Anna 99/9F; 8 Ben 1/0; 36 Cleo 5/0; Ben IsComputer 1", "a7\t8\t90\n",
         "Anna, player 1, 2 territories, on turn | Ben, player 2, computer, dead | Cleo, player 3, 1 "
         "territory",
         "Money: $0 | Oil: 0 barrels | Moves left: 2 | Attacks left: 1 | Nuclear bomb: none"},
        {"in debt for the third time", world + "Ben DebtTurns 2 Money -100", "e\n",
         "Anna, player 1, 1 territory | Ben, player 2, dead, on turn" + cleo, ""},
        {"nothing is left after a sale", world, "s7\t99\t9\n", "Anna, player 1, dead, on turn" + ben + cleo,
         ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Case);
        Sitting sitting;
        sitting.Resume(NewGame(3, row.World));
        Type(row.Keys);
        EXPECT_EQ(Aloud("player"), row.Players);
        EXPECT_EQ(Aloud("treasury"), row.Treasury);
    }
}

TEST(Roster, TellsWhoWinsAndWhoSelects) {
    {
        Sitting sitting(std::make_unique<SeededRandom>(3));
        sitting.Resume(NewGame(3,
                               "27 Anna 1/0; 35 Ben 1/0; 26 Cleo 100/0; 34 Cleo 300/0; "
                               "Ben IsComputer 1; Cleo IsComputer 1"));
        sitting.Expect({"Warning: Player 3, Cleo, wins the game!"});
        Type("e\n");
        EXPECT_TRUE(
            Aloud("player").startsWith("Anna, player 1, dead | Ben, player 2, computer, dead | Cleo"));
        EXPECT_TRUE(Aloud("player").endsWith("territories, has won"));
        EXPECT_EQ(Aloud("treasury"), "");
    }
    Sitting sitting;
    Type(" \nAnna\t\tBen\n");
    Window("frmSelect");
    EXPECT_EQ(Aloud("player"), "Anna, player 1, 0 territories, on turn | Ben, player 2, 0 territories");
    Type("7\n");
    EXPECT_EQ(Aloud("player"), "Anna, player 1, 1 territory | Ben, player 2, 0 territories, on turn");
    EXPECT_EQ(Aloud("treasury"), "");
}

/// Counts how often a widget is painted.
struct Painted : QObject {
    bool eventFilter(QObject* watched, QEvent* event) override {
        Times[watched->objectName()] += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    std::map<QString, int> Times;
};

TEST(Roster, PaintsOnlyTheCellsThatChange) {
    Sitting sitting;
    sitting.Resume(NewGame(3, "7 Anna 9/0F; 8 Ben 1/0; 36 Cleo 5/0"));
    FrontWindow();
    QTest::qWait(50);  // until all of the board has been painted
    Painted painted;
    for (RosterCell* cell : Window("frm3").findChildren<RosterCell*>()) {
        cell->installEventFilter(&painted);
    }
    Type("b\033r7\t6\t3\n");
    QTest::qWait(50);
    EXPECT_EQ(painted.Times["player(0)"], 1);    // another territory
    EXPECT_EQ(painted.Times["treasury(2)"], 1);  // a move less
    for (const char* cell : {"player(1)", "player(2)", "treasury(0)", "treasury(1)", "treasury(3)"}) {
        EXPECT_EQ(painted.Times[cell], 0) << cell;
    }
}

struct NoNavigation final : GameNavigation {
    void SelectTerritories() override {}
    void BeginFirstTurn() override {}
    void RunCommand(Command) override {}
    bool ReportClosed() override { return false; }
    void End() override {}
};

using Numbers = std::set<int>;

/// The numbers of the territories whose land does not look on the board as it does on one without a report.
Numbers Ringed(const GameState& game) {
    NoNavigation navigation;
    frm3 plain(game, navigation);
    plain.RefreshMap();
    const QRect map(0, 0, frm3::Size.width(), 430);
    const QImage without = plain.grab(map).toImage();
    const QImage with = Window("frm3").grab(map).toImage();
    static const TerritoryMap territories;
    const auto at = [](QPoint pixel) { return territories.At(QPointF(pixel) + QPointF(0.5, 0.5)); };
    std::map<int, int> differing;
    for (int i = 0; i < map.width() * map.height(); ++i) {
        const QPoint pixel(i % map.width(), i / map.width());
        if (with.pixel(pixel) != without.pixel(pixel)) {
            const auto t = at(pixel);  // half of a pixel on the border belongs to the neighbour
            const bool inside = t && t == at(pixel + QPoint(1, 1)) && t == at(pixel - QPoint(1, 1)) &&
                                t == at(pixel + QPoint(1, -1)) && t == at(pixel - QPoint(1, -1));
            differing[inside ? *t : -1] += 1;
        }
    }
    differing.erase(-1);
    Numbers ringed;
    for (const auto& [t, pixels] : differing) {
        if (pixels > 5) {
            ringed.insert(t + 1);
        }
    }
    return ringed;
}

/// The territories by number in the words of Changes.
Numbers Changed(const GameState& before, const GameState& after) {
    Numbers changed;
    for (const QString& part : QString::fromStdString(Changes(before, after)).split("; ")) {
        if (const int number = part.section(' ', 0, 0).toInt(); number > 0) {
            changed.insert(number);
        }
    }
    return changed;
}

/// Types these keys one after the other and expects the rings then to be what has changed meanwhile. Returns
/// how many there were.
std::size_t ExpectRings(const Sitting& sitting, GameState& lastReported,
                        const std::vector<const char*>& keys) {
    std::size_t ringed = 0;
    for (const char* toNextReport : keys) {
        Type(toNextReport);
        const Numbers expected = Changed(lastReported, sitting.Game());
        EXPECT_EQ(Ringed(sitting.Game()), expected) << Desktop().toStdString();
        ringed += expected.size();
        lastReported = sitting.Game();
    }
    return ringed;
}

TEST(Rings, AreTheDifferenceOfTheGamesAtTwoReportsUntilTheReportCloses) {
    for (const std::uint32_t seed : {1U, 2U, 3U}) {
        Sitting sitting(std::make_unique<SeededRandom>(seed));
        GameState game =
            NewGame(4,
                    "7 Anna 900/90FD; 36 Ben 30/3F; 24 Cleo 30/3F; 15 Dora 20/2F; Anna Money 30000 "
                    "Ben IsComputer 1 Cleo IsComputer 1 Dora IsComputer 1");
        sitting.Resume(game);
        EXPECT_EQ(Ringed(sitting.Game()), Numbers());  // nothing has happened since it was saved
        std::size_t ringed = 0;
        for (int round = 0; round < 3; ++round) {
            Type("r7\t8\t9\n\033");  // shows no report, but is told with the next
            ringed += ExpectRings(sitting, game, {"b7\t1\n", "\ne", "\n", "\n", "\n"});
            Type("\n");
            EXPECT_EQ(Ringed(sitting.Game()), Numbers());
        }
        EXPECT_GT(ringed, 20U);
    }
}

TEST(Rings, AreStrongerWhereTheOwnerChanged) {
    const GameState before = NewGame(2, "7 Anna 9/0; 8 Ben 9/0; 36 Ben 9/0");
    GameState after = before;
    after.TerritoryAt(6).Stationed.Tanks = 1;
    after.TerritoryAt(35).HasDefense = true;
    after.CurrentPlayer = 0;
    Capture(after, 7, {1, 0});
    Abandon(after, 35);
    const MapChanges changes = ChangesBetween(before, after);
    EXPECT_EQ(changes, (MapChanges{TerritorySet(1ULL << 7U | 1ULL << 35U), TerritorySet(1ULL << 6U)}));
    EXPECT_EQ(ChangesBetween(after, after), MapChanges());

    NoNavigation navigation;
    frm3 board(before, navigation);
    board.RefreshMap();
    const QImage plain = board.grab().toImage();
    const auto differing = [&](const MapChanges& shown) {
        board.ShowChanges(shown);
        const QImage seen = board.grab().toImage();
        int pixels = 0;
        for (int i = 0; i < seen.width() * seen.height(); ++i) {
            const QPoint pixel(i % seen.width(), i / seen.width());
            pixels += static_cast<int>(seen.pixel(pixel) != plain.pixel(pixel));
        }
        return pixels;
    };
    EXPECT_GT(differing({changes.Changed, {}}), differing({{}, changes.Changed}) * 5 / 4);
}

/// How much of the board, in pixels of the layout, a window of this size leaves free on such a screen, where
/// title bars are 24 pixels high. 525 is all of it, 487 what lies above the roster, 430 the map.
int LeftFree(QSize screen, qreal zoom, QSize window) {
    constexpr int titleBar = 24;
    const auto framed = [zoom](QSize size) { return (QSizeF(size) * zoom).toSize() + QSize(0, titleBar); };
    const QRect room(QPoint(100, 50), screen);
    const QSize board = framed(frm3::Size);
    const QRect above(PlaceAbove(framed({258, 277}).height(), board, room), board);
    const QRect below(PlaceBelow(above, framed(window), room), framed(window));
    EXPECT_TRUE(room.contains(above) && room.contains(below));
    EXPECT_NEAR(below.center().x(), above.center().x(), 1);
    return static_cast<int>((below.top() - above.top() - titleBar) / zoom);
}

TEST(Placement, LeavesTheMapFreeWhereTheWorkAreaHasRoom) {
    struct Row {
        QSize Screen;
        qreal Zoom;
        int ByReport;
        int ByUpgrade;
    };
    const std::vector<Row> rows{{{1024, 768}, 1, 500, 443},    {{1366, 768}, 1, 500, 443},
                                {{1280, 1024}, 1, 525, 525},   {{1920, 1080}, 1, 525, 525},
                                {{1920, 1080}, 1.5, 468, 410}, {{2560, 1440}, 1, 525, 525},
                                {{2560, 1440}, 2, 476, 419}};
    for (const Row& row : rows) {
        EXPECT_EQ(LeftFree(row.Screen, row.Zoom, {499, 220}), row.ByReport) << row.Screen.width();
        EXPECT_EQ(LeftFree(row.Screen, row.Zoom, {258, 277}), row.ByUpgrade) << row.Screen.width();
    }
}

TEST(Placement, StaysInTheWorkAreaWhereverTheBoardIs) {
    const QRect room(0, 0, 1920, 1080);
    // A board that has been dragged to the edges of the screen; windows larger than it; no screen at all
    EXPECT_EQ(PlaceBelow({1800, 900, 750, 549}, {499, 244}, room), QPoint(1421, 836));
    EXPECT_EQ(PlaceBelow({-600, -500, 750, 549}, {499, 244}, room), QPoint(0, 49));
    EXPECT_EQ(PlaceBelow({0, 0, 750, 549}, {2000, 1200}, room), QPoint(0, 0));
    EXPECT_EQ(PlaceBelow({10, 10, 750, 549}, {499, 244}, {}), QPoint(135, 559));
}

}  // namespace
}  // namespace vorlund
