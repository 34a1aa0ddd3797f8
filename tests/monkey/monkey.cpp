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
namespace {

constexpr std::clock_t LongestEvent = 2 * CLOCKS_PER_SEC;  // of this program alone, on a busy machine too

const QString Keys = QStringLiteral(
    "B,S,R,A,U,T,E,V,E,E,Return,Return,Enter,Escape,Tab,Shift+Tab,Space,Delete,Backspace,Up,Down,PgDown,Home,"
    "Ctrl+V,Menu,F1,Alt+F4,Alt+1,Alt+3,Ctrl+Z,Ctrl+V,Shift+T,\u00DF");

QString toolkitMessage;

/// What the toolkit has to say is a fault of ours, but for what a platform cannot do, and for hands that come
/// too late.
void TakeMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
    static const QRegularExpression harmless(
        QStringLiteral("^This plugin does not support|^Mouse event at|setNetWmStateOnUnmappedWindow"));
    toolkitMessage = message.contains(harmless) ? toolkitMessage : message;
}

QString NameOf(const QWidget& window) {
    return QString::fromLatin1(window.metaObject()->className());
}

/// The windows that a hand can reach, by name, for the toolkit keeps them in no order that would come again.
QList<QWidget*> WindowsOnScreen() {
    QList<QWidget*> windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget* window) {
        return !window->isVisible() || window->windowType() == Qt::ToolTip || !window->windowHandle();
    });
    std::sort(windows.begin(), windows.end(), [](auto* a, auto* b) { return NameOf(*a) < NameOf(*b); });
    return windows;
}

/// Null while it is not on the screen.
QWidget* Board() {
    const QList<QWidget*> windows = WindowsOnScreen();
    const auto board = std::find_if(windows.begin(), windows.end(),
                                    [](auto* window) { return qobject_cast<frm3*>(window) != nullptr; });
    return board != windows.end() ? *board : nullptr;
}

/// What `window` shows of one kind; the dialogs that it owns are its children too.
template <class Widget>
QList<Widget*> Shown(const QWidget& window) {
    QList<Widget*> shown = window.findChildren<Widget*>();
    shown.removeIf([&](const Widget* widget) { return !widget->isVisible() || widget->window() != &window; });
    return shown;
}

/// Random hands at the real windows of one run of the real program. After each event everything must still be
/// well. The same seed does the same again.
class Monkey : public QObject {
public:
    explicit Monkey(int seed) : seed_(seed), mind_(static_cast<std::uint32_t>(seed)) {
        for (char name = 'a'; name <= 'l'; ++name) {  // as many as there is room for in the list
            saves_.Save(std::string(1, name) + ".vrs", RandomPosition(mind_), true);
        }
        if (!QFile(folder_.filePath(QStringLiteral("0 empty.vrs"))).open(QIODevice::WriteOnly)) {
            GiveUp("no file can be written");
        }
        QGuiApplication::clipboard()->clear();
    }

    /// Runs the program until it ends or `events` are done; gives how many were done.
    int Play(qsizetype events) {
        std::fprintf(stderr, "seed %d: ", seed_);
        eventsAllowed_ = events;
        eventBegan_ = std::clock();
        program_.Start();
        startTimer(0);
        QApplication::exec();
        if (!WindowsOnScreen().isEmpty()) {
            GiveUp("the program has ended, but not all of its windows");
        }
        std::fprintf(stderr, "%lld events%s\n", done_.size(), game_.GameOver ? ", a whole game" : "");
        return static_cast<int>(done_.size());
    }

protected:
    void timerEvent(QTimerEvent* event) override {
        // A timer of its own for each event: one during which a message box waits must not hold up the next.
        killTimer(event->timerId());
        startTimer(0);
        const int depth = QThread::currentThread()->loopLevel();
        if (depth <= actingAt_) {
            return;
        }
        if (const std::string broken = Broken(); !broken.empty()) {
            GiveUp(broken);
        }
        const int before = std::exchange(actingAt_, depth);
        if (done_.size() < eventsAllowed_) {
            Act();
        } else if (auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            box->done(0);  // before the program ends, for the code that asked waits
        } else if (depth == 1) {
            program_.End();
        }
        actingAt_ = before;
    }

private:
    void Act() {
        if (NothingCanBeDone()) {
            return;
        }
        eventBegan_ = std::clock();
        const QList<QWidget*> windows = WindowsOnScreen();
        const qsizetype board = windows.size() > 1 && !OneIn(4, mind_) ? 1 : 0;  // it is the first by name
        QWidget* const modal = QApplication::activeModalWidget();
        const bool strays = modal == nullptr || OneIn(10, mind_);
        QWidget& window = strays ? *Any(windows.mid(board), mind_) : *modal;
        const auto buttons = Shown<QAbstractButton>(window);
        const auto fields = Shown<QLineEdit>(window);
        const bool mayEndGame = window.parentWidget() == nullptr && !game_.GameOver;
        const int kind = mind_.Draw(100);
        if (kind < 4 && (!mayEndGame || OneIn(10, mind_))) {
            done_ << NameOf(window) + QStringLiteral(" closed");
            window.windowHandle()->close();
        } else if (kind < 6) {
            done_ << NameOf(window) + QStringLiteral(" activated");
            window.windowHandle()->requestActivate();
        } else if (kind < 30) {
            done_ << NameOf(window) + u' ' + Any(Keys.split(u','), mind_);
            const QKeyCombination key = QKeySequence(done_.last().section(u' ', 1))[0];
            QTest::keyClick(window.windowHandle(), key.key(), key.keyboardModifiers());
        } else if (kind < 60 && !fields.isEmpty()) {
            Fill(window, fields);
        } else {
            const bool anywhere = kind < 70 || buttons.isEmpty();
            Click(window, anywhere ? *Any(Shown<QWidget>(window) << &window, mind_) : *Any(buttons, mind_));
        }
    }

    void Click(const QWidget& window, const QWidget& target) {
        const QPoint within(mind_.Draw(target.width()), mind_.Draw(target.height()));
        const QPoint place = target.mapTo(&window, within);
        const auto button = OneIn(10, mind_) ? Qt::RightButton : Qt::LeftButton;
        const char* const kind = Any(std::array{"hover", "double", "click", "click", "click"}, mind_);
        done_ << QStringLiteral("%1 %2 %3 %4").arg(NameOf(window), kind).arg(place.x()).arg(place.y());
        if (*kind == 'h') {
            QTest::mouseMove(window.windowHandle(), place);
        } else if (*kind == 'd') {
            QTest::mouseDClick(window.windowHandle(), button, {}, place);
        } else {
            QTest::mouseClick(window.windowHandle(), button, {}, place);
        }
    }

    void Fill(const QWidget& window, const QList<QLineEdit*>& fields) {
        const Route route = RandomRoute(game_, mind_);
        QWindow* const hands = window.windowHandle();
        done_ << NameOf(window);
        for (const QLineEdit* field : fields) {
            const QString text = Entry(field->objectName(), route);
            done_.last() += u' ' + field->objectName() + u' ' + text;
            QGuiApplication::clipboard()->setText(text);
            QTest::mouseClick(hands, Qt::LeftButton, {}, field->geometry().center());
            QTest::keyClick(hands, Qt::Key_A, Qt::ControlModifier);
            for (const QChar letter : text) {
                QTest::sendKeyEvent(QTest::Click, hands, Qt::Key_unknown, letter, Qt::NoModifier);
            }
        }
        if (OneIn(2, mind_)) {
            QTest::keyClick(hands, Qt::Key_Return);
        }
    }

    QString Entry(const QString& field, const Route& route) {
        if (field == QLatin1String("txtSave") || field.startsWith(QLatin1String("txtN("))) {
            return QString::fromStdString(NameEntry(mind_));
        }
        return QString::fromStdString(
            field == QLatin1String("txtTroops")                  ? QuantityEntry(route.Force.Troops, mind_)
            : field == QLatin1String("txtTanks")                 ? QuantityEntry(route.Force.Tanks, mind_)
            : field == QLatin1String("txtOil")                   ? QuantityEntry(30, mind_)
            : field == QLatin1String("txtC1") || OneIn(3, mind_) ? route.From
                                                                 : route.To);
    }

    static CommandSet Available(const QWidget& board) {
        const auto labels = board.findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly);
        CommandSet available;
        for (const Command command : AllCommands) {
            const bool enabled = labels[static_cast<qsizetype>(command)]->isEnabled();
            available = enabled ? available.With(command) : available;
        }
        return available;
    }

    bool NothingCanBeDone() {
        const QList<QWidget*> windows = WindowsOnScreen();
        const QWidget* const board = Board();
        const bool boardAlone = windows.size() == 1 && windows.front() == board;
        return windows.isEmpty() ||
               (boardAlone && !game_.GameOver && Available(*board) == CommandSet::None());
    }

    std::string Broken() {
        if (!toolkitMessage.isEmpty()) {
            return "the toolkit says: " + toolkitMessage.toStdString();
        }
        if (std::clock() - eventBegan_ > LongestEvent) {
            return NothingCanBeDone() ? "nothing is left to do" : "an event took too long";
        }
        // Before the first turn has begun, players without a territory are alive.
        const QWidget* const board = Board();
        if (board == nullptr || board->windowTitle() == QLatin1String("Vorlund")) {
            return "";
        }
        const CommandSet available = Available(*board);
        std::string broken = BrokenRecords(game_) + BrokenCommands(game_, available);
        if (available.Has(Command::Save) && done_.size() % 8 == 0) {
            broken += BrokenSaving(game_);
        }
        for (int t = 0; t < NumTerritories; ++t) {
            const auto* const count = board->findChild<QLabel*>(QStringLiteral("lblCntry(%1)").arg(t));
            const Territory& territory = game_.TerritoryAt(t);
            const QString units =
                QStringLiteral("%1/%2").arg(territory.Stationed.Troops).arg(territory.Stationed.Tanks);
            if (count->isHidden() ? territory.Occupied : count->text() != units) {
                broken += "the board does not show what stands in " + std::string(territory.Name);
            }
        }
        for (const QWidget* window : WindowsOnScreen()) {
            if ((game_.GameOver || game_.Current().IsDead) && qobject_cast<const CommandDialog*>(window)) {
                broken += NameOf(*window).toStdString() + " is open for somebody who can do nothing";
            }
        }
        return broken;
    }

    [[noreturn]] void GiveUp(const std::string& complaint) const {
        std::fprintf(stderr, "\n%s\nBROKEN: %s\nThe same again: VORLUND_SEED=%d VORLUND_EVENTS=%lld\n",
                     qPrintable(done_.mid(done_.size() - 30).join(u'\n')), complaint.c_str(), seed_,
                     done_.size());
        std::_Exit(1);
    }

    int seed_;
    SeededRandom mind_;
    QTemporaryDir folder_;
    GameState game_;
    SeededRandom chance_{static_cast<std::uint32_t>(seed_)};
    SavedGamesFolder saves_{folder_.path().toStdString()};
    SoundPlayer sounds_{SOUND_MODULE};
    Program program_{game_, chance_, saves_, sounds_};
    qsizetype eventsAllowed_ = 0;
    QStringList done_;
    std::clock_t eventBegan_ = 0;
    int actingAt_ = 0;  ///< the depth of event loops at which an event is being carried out
};

}  // namespace
}  // namespace vorlund

/// Does VORLUND_EVENTS random events (200,000 if unset) from VORLUND_SEED (1) to the program's windows, up to
/// the first that breaks something.
int main(int argc, char** argv) {
    setenv("SDL_AUDIODRIVER", "dummy", 0);  // the sounds are played, but into the void
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    qInstallMessageHandler(vorlund::TakeMessage);
    const vorlund::InputFilter inputFilter;
    int seed = qEnvironmentVariable("VORLUND_SEED", "1").toInt();
    for (int left = qEnvironmentVariable("VORLUND_EVENTS", "200000").toInt(); left > 0; ++seed) {
        left -= vorlund::Monkey(seed).Play(left);
    }
}
