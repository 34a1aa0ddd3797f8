// SPDX-License-Identifier: MIT
#include <QTest>
#include <QtWidgets>
#include <ctime>

#include "tests/engine/games.h"
#include "tests/engine/seeded_random.h"
#include "ui/machine/sound_player.h"
#include "ui/parts/input_filter.h"
#include "ui/program.h"
#include "ui/windows/command_dialog.h"
#include "ui/windows/frm3.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

constexpr std::clock_t LongestEvent = 2 * CLOCKS_PER_SEC;  ///< CPU time, which other processes do not affect

const QString Keys =
    u"B,S,R,A,U,T,E,V,E,E,Return,Return,Enter,Escape,Tab,Shift+Tab,Space,Delete,Backspace,Up,Down,PgDown,"
    u"Home,"
    u"Ctrl+V,Menu,F1,Alt+F4,Alt+1,Alt+3,Ctrl+Z,Ctrl+V,Shift+T,\u00DF"_s;

QString toolkitMessage;

/// Keeps messages of the toolkit as faults of the program, except those on what the platform does not support
/// and on events for windows that have closed meanwhile.
void KeepMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
    static const QRegularExpression harmless(
        u"^This plugin does not support|^Mouse event at|setNetWmStateOnUnmappedWindow"_s);
    toolkitMessage = message.contains(harmless) ? toolkitMessage : message;
}

QString NameOf(const QWidget& window) {
    return QString::fromLatin1(window.metaObject()->className());
}

/// The visible windows sorted by name, because the toolkit's order differs from run to run.
QList<QWidget*> VisibleWindows() {
    QList<QWidget*> windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget* window) {
        return !window->isVisible() || window->windowType() == Qt::ToolTip || !window->windowHandle();
    });
    std::sort(windows.begin(), windows.end(), [](auto* a, auto* b) { return NameOf(*a) < NameOf(*b); });
    return windows;
}

/// Null while the board is not visible.
QWidget* Board() {
    const QList<QWidget*> windows = VisibleWindows();
    const auto board = std::find_if(windows.begin(), windows.end(),
                                    [](auto* window) { return qobject_cast<frm3*>(window) != nullptr; });
    return board != windows.end() ? *board : nullptr;
}

/// The visible controls of one class in `window`, without those of its dialogs, which are its children too.
template <class Widget>
QList<Widget*> Visible(const QWidget& window) {
    QList<Widget*> controls = window.findChildren<Widget*>();
    controls.removeIf(
        [&](const Widget* widget) { return !widget->isVisible() || widget->window() != &window; });
    return controls;
}

/// Sends random events to the windows of one run of the program and checks the invariants after each. The
/// same seed gives the same events.
class Monkey : public QObject {
public:
    explicit Monkey(int seed) : seed_(seed), random_(static_cast<std::uint32_t>(seed)) {
        for (char name = 'a'; name <= 'l'; ++name) {  // enough to fill the list
            saves_.Save(std::string(1, name) + ".vrs", RandomPosition(random_), true);
        }
        if (!QFile(folder_.filePath(u"0 empty.vrs"_s)).open(QIODevice::WriteOnly)) {
            Fail("no file can be written");
        }
        QGuiApplication::clipboard()->clear();
    }

    /// Runs the program until it ends or `events` have been sent; returns how many were.
    int Play(qsizetype events) {
        std::fprintf(stderr, "seed %d: ", seed_);
        eventsAllowed_ = events;
        eventBegan_ = std::clock();
        program_.Start();
        startTimer(0);
        QApplication::exec();
        if (!VisibleWindows().isEmpty()) {
            Fail("the program has ended, but a window is open");
        }
        std::fprintf(stderr, "%lld events%s\n", done_.size(), game_.GameOver ? ", a whole game" : "");
        return static_cast<int>(done_.size());
    }

protected:
    void timerEvent(QTimerEvent* event) override {
        // Each event has its own timer, because an event that opens a message box returns only when the box
        // closes.
        killTimer(event->timerId());
        startTimer(0);
        const int depth = QThread::currentThread()->loopLevel();
        if (depth <= actingAt_) {
            return;
        }
        if (const std::string broken = Broken(); !broken.empty()) {
            Fail(broken);
        }
        const int before = std::exchange(actingAt_, depth);
        if (done_.size() < eventsAllowed_) {
            Act();
        } else if (auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            box->done(0);  // first, because the code that opened the box has not returned
        } else if (depth == 1) {
            program_.End();
        }
        actingAt_ = before;
    }

private:
    void Act() {
        if (IsStuck()) {
            return;
        }
        eventBegan_ = std::clock();
        const QList<QWidget*> windows = VisibleWindows();
        const qsizetype first =
            windows.size() > 1 && !OneIn(4, random_) ? 1 : 0;  // mostly not the board, number 0
        QWidget* const modal = QApplication::activeModalWidget();
        const bool anyWindow = modal == nullptr || OneIn(10, random_);
        QWidget& window = anyWindow ? *OneOf(windows.mid(first), random_) : *modal;
        const auto buttons = Visible<QAbstractButton>(window);
        const auto fields = Visible<QLineEdit>(window);
        const bool mayEndGame = window.parentWidget() == nullptr && !game_.GameOver;
        const int kind = random_.Draw(100);
        if (kind < 4 && (!mayEndGame || OneIn(10, random_))) {
            done_ << NameOf(window) + u" closed"_s;
            window.windowHandle()->close();
        } else if (kind < 6) {
            done_ << NameOf(window) + u" activated"_s;
            window.windowHandle()->requestActivate();
        } else if (kind < 30) {
            done_ << NameOf(window) + u' ' + OneOf(Keys.split(u','), random_);
            const QKeyCombination key = QKeySequence(done_.last().section(u' ', 1))[0];
            QTest::keyClick(window.windowHandle(), key.key(), key.keyboardModifiers());
        } else if (kind < 60 && !fields.isEmpty()) {
            Fill(window, fields);
        } else {
            const bool anywhere = kind < 70 || buttons.isEmpty();
            Click(window,
                  anywhere ? *OneOf(Visible<QWidget>(window) << &window, random_) : *OneOf(buttons, random_));
        }
    }

    void Click(const QWidget& window, const QWidget& target) {
        const QPoint within(random_.Draw(target.width()), random_.Draw(target.height()));
        const QPoint place = target.mapTo(&window, within);
        const auto button = OneIn(10, random_) ? Qt::RightButton : Qt::LeftButton;
        const char* const kind = OneOf(std::array{"hover", "double", "click", "click", "click"}, random_);
        done_ << u"%1 %2 %3 %4"_s.arg(NameOf(window), kind).arg(place.x()).arg(place.y());
        if (*kind == 'h') {
            QTest::mouseMove(window.windowHandle(), place);
        } else if (*kind == 'd') {
            QTest::mouseDClick(window.windowHandle(), button, {}, place);
        } else {
            QTest::mouseClick(window.windowHandle(), button, {}, place);
        }
    }

    void Fill(const QWidget& window, const QList<QLineEdit*>& fields) {
        const Route route = RandomRoute(game_, random_);
        QWindow* const handle = window.windowHandle();
        done_ << NameOf(window);
        for (const QLineEdit* field : fields) {
            const QString text = Entry(field->objectName(), route);
            done_.last() += u' ' + field->objectName() + u' ' + text;
            QGuiApplication::clipboard()->setText(text);
            QTest::mouseClick(handle, Qt::LeftButton, {}, field->geometry().center());
            QTest::keyClick(handle, Qt::Key_A, Qt::ControlModifier);
            for (const QChar letter : text) {
                QTest::sendKeyEvent(QTest::Click, handle, Qt::Key_unknown, letter, Qt::NoModifier);
            }
        }
        if (OneIn(2, random_)) {
            QTest::keyClick(handle, Qt::Key_Return);
        }
    }

    QString Entry(const QString& field, const Route& route) {
        if (field == u"txtSave"_s || field.startsWith(u"txtN("_s)) {
            return QString::fromStdString(NameEntry(random_));
        }
        return QString::fromStdString(field == u"txtTroops"_s  ? QuantityEntry(route.Force.Troops, random_)
                                      : field == u"txtTanks"_s ? QuantityEntry(route.Force.Tanks, random_)
                                      : field == u"txtOil"_s   ? QuantityEntry(30, random_)
                                      : field == u"txtC1"_s || OneIn(3, random_) ? route.From
                                                                                 : route.To);
    }

    static CommandSet Enabled(const QWidget& board) {
        const auto labels = board.findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly);
        CommandSet enabled;
        for (const Command command : AllCommands) {
            const bool isEnabled = labels[static_cast<qsizetype>(command)]->isEnabled();
            enabled = isEnabled ? enabled.With(command) : enabled;
        }
        return enabled;
    }

    bool IsStuck() {
        const QList<QWidget*> windows = VisibleWindows();
        const QWidget* const board = Board();
        const bool boardAlone = windows.size() == 1 && windows.front() == board;
        return windows.isEmpty() || (boardAlone && !game_.GameOver && Enabled(*board) == CommandSet::None());
    }

    std::string Broken() {
        if (!toolkitMessage.isEmpty()) {
            return "the toolkit says: " + toolkitMessage.toStdString();
        }
        if (std::clock() - eventBegan_ > LongestEvent) {
            return IsStuck() ? "nothing is left to do" : "an event took too long";
        }
        // Before the first turn, players without a territory are alive.
        const QWidget* const board = Board();
        if (board == nullptr || board->windowTitle() == u"Vorlund"_s) {
            return "";
        }
        const CommandSet enabled = Enabled(*board);
        std::string broken = BrokenRecords(game_) + BrokenCommands(game_, enabled);
        if (enabled.Has(Command::Save) && done_.size() % 8 == 0) {
            broken += BrokenSaving(game_);
        }
        for (int t = 0; t < NumTerritories; ++t) {
            const auto* const count = board->findChild<QLabel*>(u"lblCntry(%1)"_s.arg(t));
            const Territory& territory = game_.TerritoryAt(t);
            const QString units = u"%1/%2"_s.arg(territory.Stationed.Troops).arg(territory.Stationed.Tanks);
            if (count->isHidden() ? territory.Occupied : count->text() != units) {
                broken += "the board does not show what stands in " + std::string(territory.Name);
            }
        }
        for (const QWidget* window : VisibleWindows()) {
            if ((game_.GameOver || game_.Current().IsDead) && qobject_cast<const CommandDialog*>(window)) {
                broken += NameOf(*window).toStdString() + " is open for a player without commands";
            }
        }
        return broken;
    }

    [[noreturn]] void Fail(const std::string& complaint) const {
        std::fprintf(stderr, "\n%s\nBROKEN: %s\nRepeat with VORLUND_SEED=%d VORLUND_EVENTS=%lld\n",
                     qPrintable(done_.mid(done_.size() - 30).join(u'\n')), complaint.c_str(), seed_,
                     done_.size());
        std::_Exit(1);
    }

    int seed_;
    SeededRandom random_;
    QTemporaryDir folder_;
    GameState game_;
    SeededRandom chance_{static_cast<std::uint32_t>(seed_)};
    SavedGamesFolder saves_{folder_.path().toStdString()};
    SoundPlayer sounds_{SOUND_MODULE};
    Program program_{game_, chance_, saves_, sounds_};
    qsizetype eventsAllowed_ = 0;
    QStringList done_;
    std::clock_t eventBegan_ = 0;
    int actingAt_ = 0;  ///< the nesting depth of the event loop in which an event is being sent
};

}  // namespace
}  // namespace vorlund

/// Sends VORLUND_EVENTS random events (200,000 if unset) with seeds from VORLUND_SEED (1) on, until an
/// invariant is broken.
int main(int argc, char** argv) {
    setenv("SDL_AUDIODRIVER", "dummy", 0);  // without a sound device
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    qInstallMessageHandler(vorlund::KeepMessage);
    const vorlund::InputFilter inputFilter;
    int seed = qEnvironmentVariable("VORLUND_SEED", "1").toInt();
    for (int left = qEnvironmentVariable("VORLUND_EVENTS", "200000").toInt(); left > 0; ++seed) {
        left -= vorlund::Monkey(seed).Play(left);
    }
}
