// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QFontInfo>
#include <QScreen>
#include <QTest>
#include <QToolTip>
#include <QWindow>

#include "tests/screens/colours.h"
#include "tests/screens/driver.h"
#include "ui/windows/roster.h"

// The painted pixels of every screen: contrast, overlaps and clipping, with the font family, device pixel
// ratio and zoom that the environment sets.

namespace vorlund {
namespace {

int Distance(QRgb one, QRgb other) {
    return std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
           std::abs(qBlue(one) - qBlue(other));
}

// The painted text of a widget, with its background in the window.
struct Letters {
    QRect Ink;          ///< bounds in device pixels
    int Exact = 0;      ///< pixels of exactly the text's colour
    double Worst = 21;  ///< lowest contrast with the pixel behind, except at antialiased edges
};

// The darkest pixel as near as the outline of a letter must be.
QRgb DarkestAround(const QImage& picture, QPoint middle) {
    const QPoint reach = QPoint(3, 3) * picture.devicePixelRatio() * Zoom::OfApplication().Factor();
    const QRect around = QRect(middle - reach, middle + reach).intersected(picture.rect());
    QRgb darkest = qRgb(255, 255, 255);
    for (int y = around.top(); y <= around.bottom(); ++y) {
        for (int x = around.left(); x <= around.right(); ++x) {
            darkest = qGray(picture.pixel(x, y)) < qGray(darkest) ? picture.pixel(x, y) : darkest;
        }
    }
    return darkest;
}

Letters LettersOf(QWidget& widget, QRgb colour) {
    QWidget& window = *widget.window();
    const QRect place(widget.mapTo(&window, QPoint()), widget.size());
    auto* command = qobject_cast<CommandLabel*>(&widget);
    const QString text = widget.property("text").toString();
    const QImage with = window.grab(place).toImage();
    command != nullptr ? command->setText({}) : widget.hide();
    const QImage without = window.grab(place).toImage();
    command != nullptr ? command->setText(text) : widget.show();
    const bool outlined = command != nullptr && colour != colour::Rest;
    Letters letters;
    for (int i = 0; i < with.width() * with.height(); ++i) {
        const QPoint pixel(i % with.width(), i / with.width());
        const QRgb behind = without.pixel(pixel);
        if (with.pixel(pixel) != behind) {
            letters.Ink |= QRect(pixel, QSize(1, 1));
            letters.Exact += with.pixel(pixel) == colour ? 1 : 0;
            if (outlined) {
                if (with.pixel(pixel) == colour) {
                    letters.Worst = std::min(letters.Worst, Contrast(colour, DarkestAround(with, pixel)));
                }
                continue;
            }
            const bool fringe = 4 * Distance(with.pixel(pixel), behind) < Distance(colour, behind);
            letters.Worst = fringe ? letters.Worst : std::min(letters.Worst, Contrast(colour, behind));
        }
    }
    return letters;
}

QPoint MiddleOf(const QWidget& widget) {
    return widget.mapTo(widget.window(), widget.rect().center());
}

// "rest", "hover" or "pressed" by the colour of the command's text; "grey" if it is none of these.
QString StateOf(const QString& window, const QString& command) {
    const std::vector<std::pair<QRgb, QString>> states{
        {colour::Rest, "rest"}, {colour::Hover, "hover"}, {colour::Pressed, "pressed"}};
    for (const auto& [colour, state] : states) {
        if (LettersOf(Control(window, command), colour).Exact > 0) {
            return state;
        }
    }
    return "grey";
}

// Checks a command at rest, under the pointer and pressed.
void ExpectLegible(const QString& window, CommandLabel& command) {
    QWindow* handle = Window(window).windowHandle();
    for (const QRgb colour : {colour::Rest, colour::Hover, colour::Pressed}) {
        PointAt(window, colour == colour::Rest ? QPoint(2, 2) : MiddleOf(command));
        if (colour == colour::Pressed) {
            QTest::mousePress(handle, Qt::LeftButton, {}, MiddleOf(command));
        }
        const Letters letters = LettersOf(command, colour);
        const QSize plate = command.size() * command.devicePixelRatioF();
        EXPECT_TRUE(letters.Exact > 0 && letters.Worst >= 4.5 &&
                    QRect(QPoint(), plate).adjusted(1, 1, -1, -1).contains(letters.Ink))
            << command.objectName().toStdString() << " has a contrast of " << letters.Worst;
    }
    QTest::mouseMove(handle, QPoint(2, 2));
    QTest::mouseRelease(handle, Qt::LeftButton, {},
                        QPoint(2, 2));  // outside the command, so that it does not run
}

// Checks that a text is not clipped and has contrast; returns the bounds of its ink.
QRect ExpectLegible(TextLabel& label) {
    const int flags = int(label.alignment()) | (label.wordWrap() ? Qt::TextWordWrap : 0);
    const QRect needed = label.fontMetrics().boundingRect(label.rect(), flags, label.text());
    EXPECT_TRUE(label.rect().contains(needed)) << label.text().toStdString() << " is cut off";
    const QRgb colour = label.palette().color(QPalette::WindowText).rgb();
    const Letters letters = LettersOf(label, colour);
    EXPECT_GE(letters.Worst, colour == colour::Status ? 4.3 : 4.5) << label.text().toStdString();
    const qreal ratio = label.devicePixelRatioF();
    return {(QPointF(letters.Ink.topLeft()) / ratio).toPoint(),
            (QSizeF(letters.Ink.size()) / ratio).toSize()};
}

// Sets the zoom of the test after the windows were opened at 1.
class Zoomer {
public:
    Zoomer() { Zoom::OfApplication().Set(qEnvironmentVariable("VORLUND_ZOOM", "1").toDouble()); }
    ~Zoomer() { Zoom::OfApplication().Set(1); }
    Zoomer(const Zoomer&) = delete;
    Zoomer& operator=(const Zoomer&) = delete;
};

// Checks that nothing in the window is clipped, of low contrast, overlapping or outside of it.
void ExpectLegible(const QString& name) {
    SCOPED_TRACE(name.toStdString());
    QWidget& window = Window(name);
    const Zoomer zoomer;
    if (auto* line = qobject_cast<QLabel*>(window.focusWidget())) {
        line->clearFocus();  // hiding it would move the ring round it
    }
    QCoreApplication::processEvents();
    std::vector<QRect> places;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        QRect place = widget->rect();
        auto* label = dynamic_cast<TextLabel*>(widget);
        auto* command = qobject_cast<CommandLabel*>(widget);
        const auto* field = qobject_cast<Field*>(widget);
        const bool isMarker = name != "frm3" && dynamic_cast<PictureLabel*>(widget) != nullptr;
        if (widget->window() != &window || !widget->isVisible() ||
            dynamic_cast<CountLabel*>(widget) != nullptr) {
            continue;
        }
        if (label != nullptr && !label->text().isEmpty()) {
            place = ExpectLegible(*label);
        } else if (command != nullptr) {
            if (command->isEnabled()) {
                ExpectLegible(name, *command);
            }
        } else if (field != nullptr) {
            const int digits = field->fontMetrics().horizontalAdvance(QString(field->maxLength(), '8'));
            EXPECT_TRUE(field->maxLength() > 3 || digits <= field->width() - 8) << "digits are cut off";
            EXPECT_EQ(field->font().pixelSize(), FontOf(Face::Field).pixelSize());
        } else if (!isMarker) {
            continue;
        }
        place.translate(widget->mapTo(&window, QPoint()));
        const QWidget& parent = *widget->parentWidget();
        place &= QRect(parent.mapTo(&window, QPoint()), parent.size());
        EXPECT_TRUE(window.rect().contains(place));
        for (const QRect& other : places) {
            EXPECT_FALSE(place.intersects(other))
                << widget->objectName().toStdString() << " lies over another";
        }
        places.push_back(place);
    }
}

const QString WideName(12, 'W');

// Five players with the widest names own the world, every territory with the longest count.
GameState FullBoard() {
    GameState game = NewGame(5);
    for (int p = 0; p < 5; ++p) {
        game.PlayerAt(p).Name = WideName.toStdString();
        game.PlayerAt(p).Money = 32000;
    }
    for (int t = 0; t < NumTerritories; ++t) {
        const bool battlefield = t == 18;  // which its neighbour can conquer
        const int owner = battlefield ? 1 : t == 27 || t % 5 == 1 ? 0 : t % 5;
        Give(game, t, owner, battlefield ? 1 : 999, battlefield ? 0 : 99);
        game.TerritoryAt(t).HasDefense = t % 2 == 0;
    }
    GiveFactory(game, 0);
    return game;
}

TEST(Look, TheFontsAreThoseOfTheEnvironment) {
    for (const Face face :
         {Face::Caption, Face::Status, Face::Heading, Face::Command, Face::Field, Face::Count}) {
        const QString family = QFontInfo(FontOf(face)).family();
        EXPECT_TRUE(family.startsWith(qEnvironmentVariable("VORLUND_FONTS"))) << family.toStdString();
    }
}

TEST(Look, TheFirstScreensAreLegible) {
    Sitting sitting;
    EXPECT_TRUE(QTest::qWaitFor([] { return Text("frm1", "lbl3").size() == 25; }));
    ExpectLegible("frm1");
    Click("frm1", "lblLoad");
    ExpectLegible("frmLoad");
    Close("frmLoad");
    Click("frm1", "lblPlay");
    ExpectLegible("frm2");
    Click("frm2", "opt5");
    Type("\n");
    for (int row = 0; row < 5; ++row) {
        Fill("frm2", QString("txtN(%1)").arg(row), row == 4 ? "\"" : row == 2 ? QString(12, '&') : WideName);
    }
    Type("\n");
    ExpectLegible("frm2");
    Fill("frm2", "txtN(4)", WideName + u'\n');
    Window("frmSelect");
    Type("28\n");
    ExpectLegible("frmSelect");
    Type("7\n");
    ExpectLegible(static_cast<TextLabel&>(Control("frmSelect", "lbl1")));
}

TEST(Look, TheBoardItsDialogsAndReportsAreLegible) {
    const std::vector<std::pair<QString, QString>> ways{{"", "frm3"},
                                                        {"b", "frmBuy"},
                                                        {"s", "frmSell"},
                                                        {"r", "frmTransport"},
                                                        {"r22\t28\t1\n", "frmTransport"},
                                                        {"a", "frmAttack"},
                                                        {"u", "frmUpgrade"},
                                                        {"u28\n", "frmUpgrade"},
                                                        {"v", "frmSave"},
                                                        {"t", "frmStatus"},
                                                        {"e", "frmReport"},
                                                        {"a21\t19\t9\n", "frmReport"},
                                                        {"b1\t9\t9\t99\n", "frmReport"}};
    for (const auto& [keys, window] : ways) {
        Sitting sitting;
        sitting.Resume(FullBoard());
        Type(keys);
        ExpectLegible(window);
    }
}

TEST(Look, CountsAreLegibleAndDoNotOverlap) {
    Sitting sitting;
    sitting.Resume(FullBoard());
    QWidget& board = Window("frm3");
    const QImage seen = board.grab().toImage();
    std::vector<QRect> plates;
    for (QWidget* widget : board.findChildren<QWidget*>()) {
        if (const auto* count = dynamic_cast<CountLabel*>(widget)) {
            const QRect plate = count->Plate().translated(count->pos());
            for (const int x : {plate.left() + 3, plate.center().x(), plate.right() - 3}) {
                const QPoint aboveDigits = QPoint(x, plate.top() + 1) * seen.devicePixelRatio();
                EXPECT_GE(Contrast(colour::Caption, seen.pixel(aboveDigits)), 4.5)
                    << count->objectName().toStdString();
            }
            plates.push_back(plate);
        }
    }
    ASSERT_EQ(plates.size(), NumTerritories);
    for (std::size_t a = 0; a < plates.size(); ++a) {
        for (std::size_t b = 0; b < a; ++b) {
            EXPECT_FALSE(plates[a].intersects(plates[b])) << "the counts of " << a + 1 << " and " << b + 1;
        }
    }
}

TEST(Look, TheRosterIsWrittenWholeAndLegible) {
    GameState game = FullBoard();  // everybody's name is as wide as can be
    game.PlayerAt(0).Oil = 32767;
    for (int p = 2; p < game.NumPlayers; ++p) {
        game.PlayerAt(p).IsComputer = true;
    }
    Sitting sitting;
    sitting.Resume(game);
    const Zoomer zoomer;
    const auto cells = Window("frm3").findChildren<RosterCell*>();
    EXPECT_EQ(cells.size(), 10);
    for (RosterCell* cell : cells) {
        const QImage seen = cell->grab().toImage();
        EXPECT_TRUE(cell->isVisible());
        EXPECT_FALSE(cell->text().contains(u'\u2026')) << cell->text().toStdString();
        EXPECT_LE(cell->fontMetrics().height(), cell->height());
        // In the row of pixels between the letters' feet and the plate's edge lies only the ground.
        const QRgb ground = seen.pixel(seen.width() / 2, seen.height() * 14 / 16);
        EXPECT_GE(Contrast(cell->palette().color(QPalette::WindowText).rgb(), ground), 4.5)
            << cell->objectName().toStdString();
    }
}

TEST(Look, HoverColoursOfCommands) {
    const auto seen = [](const QString& window, const char* pointed, const char* command) {
        PointAt(window, MiddleOf(Control(window, pointed)));
        return StateOf(window, command);
    };
    {
        Sitting newGame;
        Click("frm1", "lblPlay");
        EXPECT_EQ(seen("frm2", "opt3", "opt3"), "hover");
        EXPECT_EQ(seen("frm2", "opt4", "opt3"), "rest");
    }
    Sitting sitting;
    EXPECT_EQ(seen("frm1", "lblPlay", "lblPlay"), "hover");
    EXPECT_EQ(seen("frm1", "lblLoad", "lblPlay"), "rest");  // only one at a time
    sitting.Resume(FullBoard());
    EXPECT_EQ(seen("frm3", "lblBuy", "lblBuy"), "hover");
    EXPECT_EQ(seen("frm3", "lblSell", "lblBuy"), "hover");  // each until the pointer leaves
    Type("a");
    EXPECT_EQ(StateOf("frm3", "lblBuy"), "grey");
    Type("\033");
    EXPECT_EQ(StateOf("frm3", "lblBuy"), "rest");
    Type("a");
    EXPECT_EQ(seen("frmAttack", "lblStrike", "lblStrike"), "grey");  // no bomb
    Type("\033u");
    for (const char* price : {"lblP1", "lblP2"}) {
        EXPECT_EQ(seen("frmUpgrade", "lblGo4", "lblGo4"), "hover");
        EXPECT_EQ(seen("frmUpgrade", price, "lblGo4"), "rest");
    }
    EXPECT_EQ(seen("frmUpgrade", "lblGo4", "lblGo4"), "hover");
    PointAt("frm3", {2, 2});
    EXPECT_EQ(StateOf("frmUpgrade", "lblGo4"), "rest") << "when the pointer has left the window";
    Type("\033e");
    EXPECT_EQ(seen("frmReport", "lblCont", "lblCont"), "hover");
    EXPECT_EQ(seen("frmReport", "lbl2", "lblCont"), "rest");
    EXPECT_EQ(seen("frmReport", "lblCont", "lblCont"), "hover");
    Type("\ne");
    EXPECT_EQ(StateOf("frmReport", "lblCont"), "rest") << "of the next report";
}

TEST(Look, KeysZoomAllWindows) {
    Sitting sitting;
    const QPoint middle = Window("frm1").geometry().center();
    const qreal tooltip = QToolTip::font().pointSizeF();
    const auto near = [](QPoint a, QPoint b) { return (a - b).manhattanLength() <= 4; };
    EXPECT_TRUE(near(middle, Window("frm1").screen()->availableGeometry().center()));
    Press(Qt::Key_Plus, Qt::ControlModifier);
    const bool hasRoom = Window("frm1").screen()->availableSize().width() >= 800;  // at device pixel ratio 1
    EXPECT_TRUE(!hasRoom || near(Window("frm1").geometry().center(), middle));
    Press(Qt::Key_0, Qt::ControlModifier);
    sitting.Resume(FullBoard());
    Type("r");
    QWidget& board = Window("frm3");
    QWidget& dialog = Window("frmTransport");
    const auto letters = [] { return Control("frmTransport", "lbl1").font().pixelSize(); };
    const int smallLetters = letters();
    for (const auto& [key, zoom] : {std::pair(Qt::Key_Plus, 1.25),
                                    {Qt::Key_Equal, 1.5},
                                    {Qt::Key_Plus, 2.0},
                                    {Qt::Key_Plus, 2.0},
                                    {Qt::Key_Minus, 1.5},
                                    {Qt::Key_0, 1.0},
                                    {Qt::Key_Minus, 1.0}}) {
        Press(key, Qt::ControlModifier);
        EXPECT_EQ(board.size(), (QSizeF(750, 525) * zoom).toSize());
        EXPECT_EQ(dialog.size(), (QSizeF(391, 110) * zoom).toSize());
        EXPECT_DOUBLE_EQ(QToolTip::font().pointSizeF(), tooltip * zoom);
        EXPECT_NEAR(letters(), smallLetters * zoom, 2);
        const QImage background = LoadPicture("frmTransport", dialog.devicePixelRatioF(), zoom).toImage();
        const QPoint corner = background.rect().bottomRight() - QPoint(8, 8);
        EXPECT_EQ(dialog.grab().toImage().pixel(corner), background.pixel(corner));
    }
    EXPECT_TRUE(!hasRoom || std::abs(dialog.geometry().center().x() - board.geometry().center().x()) <= 4);
    const qreal plain = QApplication::font("QMessageBox").pointSizeF();
    Press(Qt::Key_Plus, Qt::ControlModifier);
    sitting.Expect({"Warning: Enter a number 1-42 for the territory with the starting units.", "\n", [plain] {
                        EXPECT_DOUBLE_EQ(QApplication::activeModalWidget()->font().pointSizeF(),
                                         plain * 1.25);
                    }});
    Type("\n");
    Press(Qt::Key_0, Qt::ControlModifier);
    const auto starts = [](QSize room, qreal ratio = 1.0, bool largeFonts = false) {
        return StartingZoom({750, 525}, room, ratio, largeFonts);
    };
    EXPECT_EQ(starts({2560, 1400}), 2.0);
    EXPECT_EQ(starts({2560, 1400}, 1.25), 1.0);
    EXPECT_EQ(starts({2560, 1400}, 1.0, true), 1.0);
    EXPECT_EQ(starts({1920, 1080}), 1.5);  // at 2 the title bar would not fit
    EXPECT_EQ(starts({1500, 1200}), 1.0);
    EXPECT_EQ(starts({1600, 1050}), 1.0);
    EXPECT_EQ(starts({640, 512}), 1.0) << "smaller it could not be read";
    EXPECT_EQ(starts({640, 512}, 2.0), 0.75);
    EXPECT_EQ(starts({960, 540}, 2.0), 0.75);
    EXPECT_EQ(starts({853, 682}, 1.5), 1.0);
    Zoom::OfApplication().Set(0.75);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Zoom::OfApplication().Factor(), 0.75);
    Press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Zoom::OfApplication().Factor(), 1.0);
}

TEST(Look, PicturesHaveDeviceResolution) {
    for (const auto& [name, size] : {std::pair("map", QSize(750, 525)), {"marker4", {10, 10}}}) {
        for (const qreal ratio : {1.0, 1.25, 1.5, 2.0}) {
            EXPECT_EQ(LoadPicture(name, 1.0, ratio).size(), (QSizeF(size) * ratio).toSize()) << name << ratio;
            EXPECT_EQ(LoadPicture(name, ratio, 1.0).size(), (QSizeF(size) * ratio).toSize()) << name << ratio;
        }
    }
}

}  // namespace
}  // namespace vorlund
