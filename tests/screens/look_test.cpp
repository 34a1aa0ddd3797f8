#include <QFontInfo>
#include <QTest>
#include <optional>

#include "tests/rules/small_worlds.h"
#include "tests/screens/hands.h"
#include "tests/screens/lettering.h"
#include "ui/command_label.h"
#include "ui/screen.h"

using namespace vorlund;

namespace {

// The colour in which a command is written now; nothing when it is none of the three.
std::optional<QRgb> ColourOfCommand(const QString& window, const QString& command) {
    const Lettering letters = LetteringOf(Sitting::Control(window, command));
    for (const QRgb colour : {colour::Rest, colour::Hover, colour::Pressed}) {
        if (letters.Count(colour) > 0) {
            return colour;
        }
    }
    return std::nullopt;
}

QString States(const QString& window, const QStringList& commands) {
    QStringList states;
    for (const QString& command : commands) {
        const auto colour = ColourOfCommand(window, command);
        states << (!colour                    ? "grey"
                   : *colour == colour::Rest  ? "rest"
                   : *colour == colour::Hover ? "hover"
                                              : "pressed");
    }
    return states.join(' ');
}

int InkOf(QWidget& widget) {
    const QImage image = Painted(widget);
    int ink = 0;
    for (int i = 0; i < image.width() * image.height(); ++i) {
        ink += qAlpha(image.pixel(i % image.width(), i / image.width())) > 0 ? 1 : 0;
    }
    return ink;
}

// A label whose text fits paints not a pixel more when it is given more room.
QString CutOff(TextLabel& label) {
    constexpr int more = 40;
    const int ink = InkOf(label);
    const QRect frame = label.geometry();
    const Qt::Alignment alignment = label.alignment();
    const bool centred = alignment & Qt::AlignHCenter || dynamic_cast<CountLabel*>(&label) != nullptr;
    const int side = label.wordWrap() ? 0 : more;
    label.setGeometry(frame.adjusted(centred ? -side : 0, alignment & Qt::AlignTop ? 0 : -more, side, more));
    const bool fits = InkOf(label) == ink;
    label.setGeometry(frame);
    return fits ? QString() : label.objectName() + " is cut off: " + label.text() + '\n';
}

QString CutOff(CommandLabel& command) {
    const Lettering letters = LetteringOf(command);
    const QRect plate = letters.With.rect().adjusted(1, 1, -1, -1);
    const QRect ink = letters.Ink();
    return !ink.isEmpty() && plate.contains(ink) ? QString() : command.objectName() + " leaves its plate\n";
}

QString CutOff(const Field& field) {
    const int digits = QFontMetrics(field.font()).horizontalAdvance(QString(field.maxLength(), '8'));
    const bool fits = field.maxLength() > 3 || digits <= field.width() - 8;
    return fits ? QString() : field.objectName() + " has no room for its digits\n";
}

QString Faint(TextLabel& label) {
    const QRgb colour = label.palette().color(QPalette::WindowText).rgb();
    const double contrast = LetteringOf(label).Contrast(colour);
    const bool legible = contrast >= (colour == colour::Status ? 4.3 : 4.5);
    return legible ? QString() : QString("%1 has a contrast of %2\n").arg(label.objectName()).arg(contrast);
}

// Looks at a command at rest, under the pointer and pressed.
QString Faint(const QString& window, CommandLabel& command) {
    QWidget& place = Sitting::Window(window);
    QWindow* handle = place.windowHandle();
    QString faint;
    for (const QRgb colour : {colour::Rest, colour::Hover, colour::Pressed}) {
        Sitting::PointAt(window, QPoint(2, 2));
        if (colour != colour::Rest) {
            Sitting::PointAt(window, command.objectName());
        }
        if (colour == colour::Pressed) {
            QTest::mousePress(handle, Qt::LeftButton, {}, command.mapTo(&place, command.rect().center()));
        }
        const Lettering letters = LetteringOf(command);
        const double contrast = letters.Contrast(colour);
        if (contrast < 4.5 || letters.Count(colour) == 0) {
            faint += QString("%1 in %2 has a contrast of %3\n")
                         .arg(command.objectName(), QColor(colour).name())
                         .arg(contrast);
        }
    }
    QTest::mouseMove(handle, QPoint(2, 2));
    QTest::mouseRelease(handle, Qt::LeftButton, {}, QPoint(2, 2));  // off the command: it does not run
    return faint;
}

// Where a control is seen, in the pixels of its window.
QRect PlaceOf(QWidget& widget) {
    QRect place = widget.rect();
    if (dynamic_cast<TextLabel*>(&widget) != nullptr) {
        const QRect ink = LetteringOf(widget).Ink();
        const qreal ratio = widget.devicePixelRatioF();
        place =
            QRectF(ink.left() / ratio, ink.top() / ratio, ink.width() / ratio, ink.height() / ratio).toRect();
    }
    place.translate(widget.mapTo(widget.window(), QPoint()));
    return place &
           widget.parentWidget()->rect().translated(widget.parentWidget()->mapTo(widget.window(), QPoint()));
}

QString Overlapping(QWidget& window, const QList<QWidget*>& widgets) {
    QString faults;
    QList<std::pair<QRect, QString>> places;
    for (QWidget* widget : widgets) {
        const QRect place = PlaceOf(*widget);
        for (const auto& [other, name] : places) {
            faults += place.intersects(other) ? widget->objectName() + " overlaps " + name + '\n' : QString();
        }
        faults += window.rect().contains(place) ? QString() : widget->objectName() + " leaves the window\n";
        places.append({place, widget->objectName()});
    }
    return faults;
}

QString Faults(const QString& name) {
    QWidget& window = Sitting::Window(name);
    QString faults;
    QList<QWidget*> fixed;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->window() != &window || !widget->isVisible()) {
            continue;
        }
        auto* label = dynamic_cast<TextLabel*>(widget);
        auto* command = qobject_cast<CommandLabel*>(widget);
        const bool isCount = dynamic_cast<CountLabel*>(widget) != nullptr;
        if (label != nullptr && !label->text().isEmpty()) {
            faults += CutOff(*label) + (isCount ? QString() : Faint(*label));
        }
        if (command != nullptr) {
            faults += CutOff(*command) + (command->isEnabled() ? Faint(name, *command) : QString());
        }
        const auto* field = qobject_cast<Field*>(widget);
        faults += field != nullptr ? CutOff(*field) : QString();
        const bool isShort = (label != nullptr && !isCount && !label->text().isEmpty()) || command != nullptr;
        const bool isMarker = name != "frm3" && dynamic_cast<PictureLabel*>(widget) != nullptr;
        if (isShort || isMarker || field != nullptr) {
            fixed << widget;
        }
    }
    return faults + Overlapping(window, fixed);
}

constexpr const char* WideName = "WWWWWWWWWWWW";

// Five players with the widest names hold all the world, every territory with the longest count.
GameState FullBoard() {
    GameState game = NewGame(5);
    for (int p = 0; p < 5; ++p) {
        game.PlayerAt(p).Name = WideName;
        game.PlayerAt(p).Money = 32000;
    }
    for (int t = 0; t < NumTerritories; ++t) {
        const bool battlefield = t == 18;  // one that falls to its neighbour
        const int owner = battlefield ? 1 : t == 27 || t % 5 == 1 ? 0 : t % 5;
        Give(game, t, owner, battlefield ? 1 : 999, battlefield ? 0 : 99);
        game.TerritoryAt(t).HasDefense = t % 2 == 0;
    }
    GiveFactory(game, 0);
    return game;
}

using Way = std::function<void(Sitting&)>;

Way ByKeys(const QString& keys) {
    return [keys](Sitting& sitting) {
        sitting.Resume(FullBoard());
        Sitting::Type(keys);
    };
}

void EnterNames(Sitting&) {
    Sitting::Click("frm1", "lblPlay");
    Sitting::Click("frm2", "opt5");
    Sitting::Click("frm2", "lblCont");
    for (int row = 0; row < 5; ++row) {
        Sitting::Fill("frm2", QString("txtN(%1)").arg(row), row < 4 ? WideName : "\"");
    }
    Sitting::Press(Qt::Key_Return);
}

void SelectTerritory(const QString& number) {
    Sitting::Fill("frm2", "txtN(4)", WideName);
    Sitting::Press(Qt::Key_Return);
    Sitting::Window("frmSelect");
    Sitting::Type(number + '\n');
}

}  // namespace

Q_DECLARE_METATYPE(Way)

class LookTest : public QObject {
    Q_OBJECT

private slots:
    void TheFontsAreThoseMeant();
    void EveryScreenIsLegible_data();
    void EveryScreenIsLegible();
    void CommandsUnderThePointer_data();
    void CommandsUnderThePointer();
    void BackToRest();
    void Pictures_data();
    void Pictures();
};

void LookTest::TheFontsAreThoseMeant() {
    const QString meant = qEnvironmentVariable("VORLUND_FONTS");
    for (const Face face :
         {Face::Caption, Face::Status, Face::Heading, Face::Command, Face::Field, Face::Count}) {
        const QString family = QFontInfo(FontOf(face)).family();
        QVERIFY2(family.startsWith(meant), qPrintable(family));
    }
}

void LookTest::EveryScreenIsLegible_data() {
    QTest::addColumn<QString>("window");
    QTest::addColumn<Way>("way");
    const auto row = [](const char* name, const char* window, const Way& way) {
        QTest::addRow("%s", name) << window << way;
    };
    row("the title with its credits", "frm1",
        [](Sitting&) { QTRY_COMPARE(Sitting::Text("frm1", "lbl3").size(), 25); });
    row("the saved games", "frmLoad", [](Sitting&) { Sitting::Click("frm1", "lblLoad"); });
    row("the number of players", "frm2", [](Sitting&) { Sitting::Click("frm1", "lblPlay"); });
    row("the names", "frm2", EnterNames);
    row("a rejected selection", "frmSelect", [](Sitting& sitting) {
        EnterNames(sitting);
        SelectTerritory("0");
    });
    row("the next selection", "frmSelect", [](Sitting& sitting) {
        EnterNames(sitting);
        SelectTerritory("28");
    });
    row("the board", "frm3", ByKeys(""));
    row("buying", "frmBuy", ByKeys("b"));
    row("selling", "frmSell", ByKeys("s"));
    row("transport", "frmTransport", ByKeys("r"));
    row("transport after a move", "frmTransport", ByKeys("r22\t28\t1\n"));
    row("attack", "frmAttack", ByKeys("a"));
    row("upgrade", "frmUpgrade", ByKeys("u"));
    row("upgrade after building", "frmUpgrade", ByKeys("u28\n"));
    row("saving", "frmSave", ByKeys("v"));
    row("status", "frmStatus", ByKeys("t"));
    row("the report of an upkeep", "frmReport", ByKeys("e"));
    row("the report of a battle", "frmReport", ByKeys("a21\t19\t9\n"));
    row("the report of a purchase", "frmReport", ByKeys("b1\t9\t9\t99\n"));
}

void LookTest::EveryScreenIsLegible() {
    QFETCH(QString, window);
    QFETCH(Way, way);
    Sitting sitting(NoLuck());
    way(sitting);
    QCOMPARE(Faults(window), "");
}

void LookTest::CommandsUnderThePointer_data() {
    QTest::addColumn<QString>("window");
    QTest::addColumn<Way>("way");
    QTest::addColumn<QStringList>("commands");
    QTest::addColumn<QString>(
        "second");  // their states when the pointer goes straight from the first to the second
    const Way title = [](Sitting&) {};
    QTest::addRow("title") << "frm1" << title << QStringList{"lblPlay", "lblLoad", "lblExit"}
                           << "rest hover rest";
    QTest::addRow("new game") << "frm2" << Way([](Sitting&) { Sitting::Click("frm1", "lblPlay"); })
                              << QStringList{"opt2", "lblCont", "opt3", "opt4", "opt5"}
                              << "rest hover rest rest rest";
    QTest::addRow("saved games") << "frmLoad" << Way([](Sitting&) { Sitting::Click("frm1", "lblLoad"); })
                                 << QStringList{"lblGo(0)", "lblGo(1)", "lblGo(2)"} << "rest hover rest";
    QTest::addRow("board") << "frm3" << ByKeys("") << QStringList{"lblBuy", "lblSell", "lblSave"}
                           << "hover hover rest";
    QTest::addRow("upgrade") << "frmUpgrade" << ByKeys("u") << QStringList{"lblGo1", "lblGo4", "lblGo5"}
                             << "hover hover rest";
    QTest::addRow("attack without a bomb")
        << "frmAttack" << ByKeys("a") << QStringList{"lblAttack", "lblStrike"} << "hover grey";
}

void LookTest::CommandsUnderThePointer() {
    QFETCH(QString, window);
    QFETCH(Way, way);
    QFETCH(QStringList, commands);
    Sitting sitting(NoLuck());
    way(sitting);
    const QString atRest = States(window, commands);
    QVERIFY(atRest.startsWith("rest "));
    Sitting::PointAt(window, commands[0]);
    QCOMPARE(States(window, commands), "hover" + atRest.mid(4));
    QWindow* handle = Sitting::Window(window).windowHandle();
    QWidget& first = Sitting::Control(window, commands[0]);
    const QPoint place = first.mapTo(first.window(), first.rect().center());
    QTest::mousePress(handle, Qt::LeftButton, {}, place);
    QCOMPARE(States(window, commands), "pressed" + atRest.mid(4));
    QTest::mouseMove(handle, QPoint(2, 2));
    QTest::mouseRelease(handle, Qt::LeftButton, {}, QPoint(2, 2));
    Sitting::PointAt(window, QPoint(3, 3));
    QCOMPARE(States(window, commands), atRest);
    Sitting::PointAt(window, commands[0]);
    Sitting::PointAt(window, commands[1]);
    QTEST(States(window, commands), "second");
    Sitting::PointAt(window, QPoint(2, 2));
    QCOMPARE(States(window, commands), atRest);
}

void LookTest::BackToRest() {
    Sitting sitting(NoLuck());
    ByKeys("u")(sitting);
    for (const char* price : {"lblP1", "lblP2"}) {
        Sitting::PointAt("frmUpgrade", "lblGo4");
        QCOMPARE(States("frmUpgrade", {"lblGo4"}), "hover");
        Sitting::PointAt("frmUpgrade", price);
        QCOMPARE(States("frmUpgrade", {"lblGo4"}), "rest");
    }
    Sitting::Press(Qt::Key_Escape);
    Sitting::Type("e");
    Sitting::PointAt("frmReport", "lblCont");
    QCOMPARE(States("frmReport", {"lblCont"}), "hover");
    Sitting::PointAt("frmReport", "lbl2");
    QCOMPARE(States("frmReport", {"lblCont"}), "rest");
}

void LookTest::Pictures_data() {
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QSize>("size");
    QTest::addRow("map") << QStringList{"map"} << QSize(750, 525);
    QTest::addRow("title") << QStringList{"earth"} << QSize(220, 100);
    QTest::addRow("banner") << QStringList{"gameover"} << QSize(692, 381);
    QTest::addRow("markers") << QStringList{"marker0", "marker1", "marker2", "marker3", "marker4"}
                             << QSize(10, 10);
    QTest::addRow("buildings") << QStringList{"extra0", "extra1", "extra2"} << QSize(10, 10);
    QTest::addRow("attack") << QStringList{"frmAttack"} << QSize(414, 189);
    QTest::addRow("buy") << QStringList{"frmBuy"} << QSize(391, 138);
    QTest::addRow("sell") << QStringList{"frmSell"} << QSize(348, 135);
    QTest::addRow("transport") << QStringList{"frmTransport"} << QSize(391, 110);
    QTest::addRow("upgrade") << QStringList{"frmUpgrade"} << QSize(258, 277);
    QTest::addRow("report") << QStringList{"frmReport"} << QSize(499, 220);
    QTest::addRow("new game") << QStringList{"frm2"} << QSize(400, 250);
    QTest::addRow("saved games") << QStringList{"frmLoad"} << QSize(340, 260);
    QTest::addRow("saving") << QStringList{"frmSave"} << QSize(300, 96);
    QTest::addRow("selection") << QStringList{"frmSelect"} << QSize(360, 140);
    QTest::addRow("status") << QStringList{"frmStatus"} << QSize(320, 340);
}

void LookTest::Pictures() {
    QFETCH(QStringList, names);
    QFETCH(QSize, size);
    for (const QString& name : names) {
        QCOMPARE(QImage(":/pictures/" + name + ".png").size(), size);
        QCOMPARE(QImage(":/pictures/" + name + "@2x.png").size(), size * 2);
    }
}

QTEST_MAIN(LookTest)
#include "look_test.moc"
