// SPDX-License-Identifier: MIT
#include "tests/screens/driver.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMetaEnum>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace {

int beeps = 0;
QList<QPointer<QWidget>> opened;  ///< screens and message boxes, the last opened at the end

}  // namespace

// Replaces the toolkit's function at link time.
void QApplication::beep() {
    ++beeps;
}

int main(int count, char** arguments) {
    // The Wayland input method fails on a display without a seat.
    qputenv("QT_IM_MODULE", "compose");
    testing::InitGoogleTest(&count, arguments);
    const QApplication application(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    if (qEnvironmentVariableIsSet("VORLUND_HIGH_CONTRAST")) {  // as a desktop's theme sets it
        QPalette palette(Qt::white, Qt::black, Qt::white, Qt::black, Qt::white, Qt::white, Qt::white,
                         Qt::black, Qt::black);
        palette.setColor(QPalette::Highlight, Qt::yellow);
        palette.setColor(QPalette::HighlightedText, Qt::black);
        QApplication::setPalette(palette);
    }
    return RUN_ALL_TESTS();
}

namespace vorlund {
namespace {

int focusTimeout = 2000;  ///< milliseconds

const QList<QPointer<QWidget>>& Opened() {
    opened.removeIf([](const QPointer<QWidget>& window) { return window.isNull() || !window->isVisible(); });
    return opened;
}

}  // namespace

QWindow& FrontWindow() {
    QCoreApplication::processEvents();
    QWidget& front = *Opened().back();
    const auto hasFocus = [&] { return QGuiApplication::focusWindow() == front.windowHandle(); };
    if (!QTest::qWaitFor(hasFocus, focusTimeout / 4)) {
        // Synthetic keys have no X time stamp, without which a window manager may not focus a new window.
        front.activateWindow();
    }
    if (!QTest::qWaitFor(hasFocus, focusTimeout)) {
        // A Wayland display without a seat has no focus.
        const bool noSeat = QGuiApplication::platformName() == "wayland";
        EXPECT_TRUE(noSeat) << front.windowTitle().toStdString() << " does not have the focus";
        focusTimeout = noSeat ? 0 : focusTimeout;
    }
    return *front.windowHandle();
}

void SoundRecorder::PlayWave(Wave wave) {
    if (wave == Wave::Vrl1) {
        ++Music;
    } else {
        Effects << (wave == Wave::Beep ? "Beep" : wave == Wave::Gun ? "Gun" : "Explode");
    }
    WhenPlayed();
}

Sitting::Sitting(std::unique_ptr<Random> chance, const QString& saves)
    : saves_(saves.isEmpty() ? folder_.filePath("saves") : saves),
      chance_(std::move(chance)),
      savesFolder_(saves_.toStdString()),
      program_(game_, *chance_, savesFolder_, sounds_),
      helpKey_([this] { program_.ShowRules(); }) {
    qApp->installEventFilter(this);
    beeps = 0;
    program_.Start();
}

Sitting::~Sitting() {
    for (const Box& box : expected_) {
        ADD_FAILURE() << "a message box did not open: " << box.Text.toStdString();
    }
}

void Sitting::Put(const QString& file, const GameState& game) const {
    EXPECT_EQ(savesFolder_.Save(file.toStdString(), game, true).Outcome, SaveResult::Kind::Saved);
}

void Sitting::Resume(const GameState& game) {
    Put("start.vrs", game);
    Click("frm1", "lblLoad");
    Type("s\n");
    Window("frm3");
}

bool Sitting::eventFilter(QObject* watched, QEvent* event) {
    auto* box = qobject_cast<QMessageBox*>(watched);
    if (event->type() == QEvent::Show && (box != nullptr || qobject_cast<Screen*>(watched) != nullptr)) {
        opened.removeIf([watched](const QPointer<QWidget>& window) { return window == watched; });
        opened << static_cast<QWidget*>(watched);
    }
    if (box != nullptr && event->type() == QEvent::Show) {
        QMetaObject::invokeMethod(
            box, [this, box] { Answer(*box); }, Qt::QueuedConnection);
    } else if (box != nullptr && event->type() == QEvent::Hide) {
        // Without a window manager nobody activates the window below the box.
        QMetaObject::invokeMethod(
            qApp,
            [] {
                if (!Opened().isEmpty()) {
                    opened.back()->activateWindow();
                }
            },
            Qt::QueuedConnection);
    }
    return false;
}

void Sitting::Answer(QMessageBox& box) {
    const QString title = box.windowTitle() == "Vorlund" ? QString() : box.windowTitle() + ": ";
    const QString icon = QMetaEnum::fromType<QMessageBox::Icon>().valueToKey(box.icon());
    const QString seen = icon + ": " + title + box.text();
    if (expected_.empty()) {
        ADD_FAILURE() << "an unexpected message box: " << seen.toStdString();
        box.reject();
        return;
    }
    const Box due = expected_.front();
    expected_.pop_front();
    const bool asks = box.text().endsWith('?') || box.text().endsWith("to return.");
    EXPECT_EQ(seen, due.Text);
    EXPECT_EQ(box.standardButtons(), asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    if (due.Meanwhile) {
        due.Meanwhile();
    }
    Type(due.Keys);
}

QString Desktop() {
    QCoreApplication::processEvents();
    QStringList titles;
    for (const auto& window : Opened()) {
        titles << window->windowHandle()->title();
        if (window->objectName() == "frm3") {
            QString keys;
            for (const auto* command :
                 window->findChildren<CommandLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
                keys += command->isEnabled() ? command->Key().toLower() : QString();
            }
            titles.back() += " [" + keys + "]";
        }
    }
    return titles.join(" | ");
}

QWidget& Window(const QString& name) {
    QWidget* found = nullptr;
    const auto isOpen = [&] {
        for (const auto& window : Opened()) {
            found = window->objectName() == name ? window.data() : found;
        }
        return found != nullptr;
    };
    if (!QTest::qWaitFor(isOpen)) {
        qFatal("the window %s does not open", qPrintable(name));
    }
    return *found;
}

QWidget& Control(const QString& window, const QString& control) {
    QWidget& place = Window(window);
    for (QWidget* child : place.findChildren<QWidget*>(control)) {
        if (child->window() == &place) {  // not in a child window
            return *child;
        }
    }
    qFatal("there is no %s in %s", qPrintable(control), qPrintable(window));
}

QString Text(const QString& window, const QString& control) {
    const QWidget& widget = Control(window, control);
    return widget.isVisible() ? widget.property("text").toString() : "(not seen)";
}

QString Entries() {
    QStringList entries;
    for (const auto* field : QWidget::find(FrontWindow().winId())->findChildren<QLineEdit*>()) {
        entries << field->text();
    }
    return entries.join('|');
}

QString ReportText() {
    const QWidget* const marker = &Control("frmReport", "imgC");
    return (marker->isVisible() ? "[" + marker->accessibleName() + "] " : QString()) +
           Text("frmReport", "lbl1") + u'\n' + Text("frmReport", "lbl2");
}

QString MapFault(const GameState& game) {
    const auto at = [](const QString& what, int x, int y) {
        return QString("%1 at %2,%3 ").arg(what).arg(x).arg(y);
    };
    const auto seen = [&at](const char* name, int t) {
        const QWidget* const part = &Control("frm3", QString("%1(%2)").arg(name).arg(t));
        const QString text = part->property("text").toString();
        return part->isVisible() ? at(text.isEmpty() ? part->accessibleName() : text, part->x(), part->y())
                                 : QString();
    };
    for (int t = 0; t < NumTerritories; ++t) {
        const Territory& land = game.TerritoryAt(t);
        const bool built = land.HasFactory || land.HasDefense;
        QString due;
        if (land.Occupied) {
            due = at(QString("Player %1").arg(land.Owner + 1), land.MapX - (built ? 10 : 5), land.MapY);
            due += !built ? QString()
                          : at(!land.HasFactory  ? "Defense"
                               : land.HasDefense ? "Factory and defense"
                                                 : "Factory",
                               land.MapX, land.MapY);
            due += at(QString("%1/%2").arg(land.Stationed.Troops).arg(land.Stationed.Tanks), land.MapX - 28,
                      land.MapY + 12);
        }
        const QString shown = seen("imgCntry", t) + seen("imgExtra", t) + seen("lblCntry", t);
        if (shown != due) {
            return QString("territory %1 shows %2, not %3").arg(t + 1).arg(shown, due);
        }
    }
    return {};
}

int Beeps() {
    return std::exchange(beeps, 0);
}

QString Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&FrontWindow(), key, modifiers);
    return Desktop();
}

QString Type(const QString& keys) {
    static const QMap<QChar, Qt::Key> named{
        {'\n', Qt::Key_Return}, {'\t', Qt::Key_Tab}, {'\033', Qt::Key_Escape}};
    for (const QChar key : keys) {
        if (named.contains(key)) {
            Press(named[key]);
        } else {
            QTest::keyClick(&FrontWindow(), key.toLatin1());
        }
    }
    return Desktop();
}

QString Click(const QString& window, QPoint place) {
    QTest::mouseClick(Window(window).windowHandle(), Qt::LeftButton, {}, place);
    return Desktop();
}

QString Click(const QString& window, const QString& control) {
    const QWidget& target = Control(window, control);
    return Click(window, target.mapTo(&Window(window), target.rect().center()));
}

QString Fill(const QString& window, const QString& field, const QString& text) {
    Click(window, field);
    Press(Qt::Key_A, Qt::ControlModifier);
    return Type(text);
}

void PointAt(const QString& window, QPoint place) {
    QTest::mouseMove(Window(window).windowHandle(), place);
    QCoreApplication::processEvents();
}

void ShowTooltip(const QString& window, QPoint place) {
    QWidget& target = Window(window);
    QHelpEvent event(QEvent::ToolTip, place, target.mapToGlobal(place));
    QApplication::sendEvent(&target, &event);
}

QString Close(const QString& window) {
    Window(window).windowHandle()->close();
    return Desktop();
}

bool EndsProgram(const std::function<void()>& action) {
    QTimer::singleShot(0, qApp, action);
    QTimer limit;
    limit.callOnTimeout(qApp, [] { QCoreApplication::exit(1); });
    limit.start(10000);
    return QCoreApplication::exec() == 0 && Desktop().isEmpty();
}

}  // namespace vorlund
