// SPDX-License-Identifier: MIT
#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <QToolTip>
#include <set>

#include "tests/screens/driver.h"
#include "ui/parts/accessible.h"
#include "ui/windows/map_walk.h"

// The map by keyboard, and what a screen reader is told without a move of the focus.

namespace vorlund {
namespace {

const GameState TwoEmpires =
    NewGame(2, "7 Anna 10/1F; 6 Anna 2/0; 8 Ben 2/0; 36 Ben 5/0D; Anna Money 250 NuclearLevel 3");

TEST(Keyboard, ArrowsLeadFromEveryTerritoryToEveryOther) {
    for (int start = 0; start < NumTerritories; ++start) {
        std::set<int> reached{start};
        std::vector<int> open{start};
        while (!open.empty()) {
            const int from = open.back();
            open.pop_back();
            for (const int arrow : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
                const auto to = NeighbourTowards(from, arrow);
                if (to && reached.insert(*to).second) {
                    open.push_back(*to);
                }
            }
        }
        EXPECT_EQ(reached.size(), NumTerritories) << "from " << start + 1;
    }
    EXPECT_EQ(NeighbourTowards(0, Qt::Key_Left), 28) << "round the edge of the map";
    EXPECT_EQ(NeighbourTowards(28, Qt::Key_Right), 0);
    EXPECT_EQ(NeighbourTowards(26, Qt::Key_Down), std::nullopt);
}

/// The number of the territory that has the focus and, if it is another, of the one that the map's tip
/// describes.
QString OnTheMap() {
    const QString focus = QApplication::focusWidget()->objectName();
    const QWidget& tip = Control("frm3", "mapTip");
    const QString told = tip.isVisible() ? tip.property("text").toString().section(' ', 0, 0) : "none";
    const QString spot =
        focus.startsWith("spot(") ? QString::number(focus.mid(5).chopped(1).toInt() + 1) : focus;
    return spot == told ? spot : spot + " tip " + told;
}

TEST(Keyboard, TheMapIsWalkedByArrowsNumbersAndOwnTerritories) {
    Sitting sitting;
    sitting.Resume(TwoEmpires);
    const QImage before = Window("frm3").grab().toImage();
    struct Step {
        Qt::Key Key;
        const char* Then;
        int Beeps = 0;
    };
    for (const Step& step : {Step{Qt::Key_Right, "6"},  // the first of her own
                             {Qt::Key_Right, "7"},
                             {Qt::Key_Right, "8"},
                             {Qt::Key_4, "4"},
                             {Qt::Key_2, "42"},
                             {Qt::Key_Down, "42", 1},
                             {Qt::Key_4, "4"},
                             {Qt::Key_3, "3"},
                             {Qt::Key_0, "30"},
                             {Qt::Key_0, "30", 1},
                             {Qt::Key_PageDown, "6"},
                             {Qt::Key_PageUp, "7"},
                             {Qt::Key_Escape, "frm3 tip none"},
                             {Qt::Key_Up, "7"}}) {
        Beeps();
        QTest::keyClick(&FrontWindow(), step.Key);
        EXPECT_EQ(OnTheMap(), step.Then);
        EXPECT_EQ(Beeps(), step.Beeps) << step.Then;
    }
    EXPECT_NE(Window("frm3").grab().toImage(), before) << "the territory is outlined";
    QAccessibleInterface& spot = *QAccessible::queryAccessibleInterface(QApplication::focusWidget());
    EXPECT_EQ(
        spot.text(QAccessible::Name),
        "7 Midwest USA. Anna (Player 1), 10 troops, 1 tank, factory. Pays $43 a turn, oil field. Neighbours: "
        "2 Vancouver Territory, 3 Montreal Territory, 6 Western USA (Anna), 8 Eastern USA (Ben), 9 Mexico");
    EXPECT_EQ(Type("b\033"), AnnasTurn);
    EXPECT_EQ(OnTheMap(), "frm3 tip none") << "a dialog takes the focus off the map";
    EXPECT_EQ(Window("frm3").grab().toImage(), before);
}

TEST(Keyboard, TerritoryFieldsStepThroughWhatTheOrderCouldTakeAndWalkTheMap) {
    Sitting sitting;
    sitting.Resume(TwoEmpires);
    Type("r");
    const auto field = [] { return qobject_cast<QLineEdit*>(QApplication::focusWidget()); };
    EXPECT_EQ(field()->accessibleDescription(), "Possible: 6, 7");
    struct Step {
        Qt::Key Key;
        Qt::KeyboardModifiers Modifiers;
        const char* Number;
    };
    for (const Step& step : {Step{Qt::Key_Left, Qt::AltModifier, ""},
                             {Qt::Key_Down, {}, "6"},
                             {Qt::Key_Down, {}, "7"},
                             {Qt::Key_Down, {}, "6"},
                             {Qt::Key_Up, {}, "7"},
                             {Qt::Key_Right, Qt::AltModifier, "8"}}) {
        Press(step.Key, step.Modifiers);
        EXPECT_EQ(field()->text(), step.Number);
    }
    EXPECT_EQ(Control("frm3", "mapTip").property("text").toString().section('\n', 0, 0), "8 Eastern USA");
    EXPECT_TRUE(field()->accessibleDescription().startsWith("8 Eastern USA. Ben (Player 2), 2 troops"));
    EXPECT_TRUE(field()->accessibleDescription().endsWith(". Not possible here"));
    Type("6");
    EXPECT_FALSE(Control("frm3", "mapTip").isVisible()) << "only for what the keys have walked to";
    EXPECT_TRUE(field()->accessibleDescription().endsWith("7 Midwest USA (Anna), 9 Mexico"));
    Type("\t");
    EXPECT_EQ(field()->accessibleDescription(), "Possible: 2, 7, 9");
    Type("\033u");
    EXPECT_EQ(field()->accessibleDescription(), "Build Factory. Possible: 6") << "after its own";
}

/// The announcements of all windows, from the first to the last.
QObjectList Announcements() {
    QObjectList found;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        for (QObject* child : window->children()) {
            QAccessibleInterface* object = QAccessible::queryAccessibleInterface(child);
            if (object != nullptr && object->role() == QAccessible::Notification) {
                found << child;
            }
        }
    }
    return found;
}

TEST(Keyboard, TextsThatAppearInAnOpenWindowAreAnnouncedOnce) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    GTEST_SKIP() << "The toolkit's event for announcements is dropped unless a screen reader listens.";
#endif
    const auto announced = [](const QString& keys, Qt::Key accelerator = Qt::Key_unknown) {
        const QObjectList before = Announcements();
        Type(keys);
        if (accelerator != Qt::Key_unknown) {
            Press(accelerator, Qt::AltModifier);
        }
        QStringList said;
        for (QObject* object : Announcements()) {
            if (!before.contains(object)) {
                said << object->objectName();
            }
        }
        return said.join(" | ");
    };
    {
        Sitting sitting;
        EXPECT_EQ(announced(" "), "");
        EXPECT_EQ(announced("\n"), "Enter the players' names:");
        EXPECT_EQ(announced("\n"), "Enter a name for Player 2.");
        Type("Anna\t\t\t ");
        EXPECT_EQ(announced("\n"), "") << "the selection is read out when it opens";
        Window("frmSelect");
        EXPECT_TRUE(announced("0\n").startsWith("Invalid territory selection.\n"));
    }
    Sitting sitting;
    sitting.Resume(
        NewGame(3, "7 Anna 10/1F; 8 Ben 2/0; 36 Cleo 5/0; Ben IsComputer 1; Anna Money 250 FirstTurn 1"));
    EXPECT_EQ(announced("a"), "Nobody attacks in their first turn.");
    EXPECT_EQ(announced("r7\t"),
              "7 Midwest USA. Anna (Player 1), 10 troops, 1 tank, factory. Pays $43 a turn, oil "
              "field. Neighbours: 2 Vancouver Territory, 3 Montreal Territory, 6 Western USA, "
              "8 Eastern USA (Ben), 9 Mexico");
    Type("6\t1");
    EXPECT_EQ(announced("\n"), "Move to Western USA was successful.");
    EXPECT_TRUE(announced("\033u", Qt::Key_3).startsWith("Level 1 Nuclear upgrade complete."));
    EXPECT_EQ(announced("\033e"), "") << "a report is read out when it opens";
    EXPECT_TRUE(announced("\n").startsWith("Upkeep status for Player 3, Cleo.\nUpkeep for Troops"));
}

}  // namespace
}  // namespace vorlund
