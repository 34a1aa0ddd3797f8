#include "tests/monkey/monkey.h"

#include <unistd.h>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QTest>
#include <QThread>
#include <QTimerEvent>
#include <QUrl>
#include <QWindow>
#include <csignal>
#include <cstdio>
#include <tuple>

#include "savegame/format.h"
#include "tests/engine/checks.h"
#include "tests/engine/games.h"
#include "ui/frm3.h"
#include "ui/frmReport.h"

namespace vorlund {
namespace {

constexpr qint64 LongestEvent = 2000;    // milliseconds
constexpr qint64 LongestNothing = 1000;  // without anything to do, likewise
constexpr unsigned HungAfter = 60;       // seconds
constexpr int PositionsPerRun = 3;
constexpr int EventsPerSaving = 8;

QString toolkitMessage;

/// What the toolkit has to say is a fault of ours, but for what a platform cannot do, and for hands that come
/// too late.
void TakeMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!message.startsWith(QLatin1String("This plugin does not support")) &&
        !message.startsWith(QLatin1String("Mouse event at")) &&
        !message.contains(QLatin1String("setNetWmStateOnUnmappedWindow"))) {
        toolkitMessage = message;
    }
}

QWidget* WindowCalled(const QString& name) {
    for (QWidget* window : WindowsOnScreen()) {
        if (NameOf(*window) == name) {
            return window;
        }
    }
    return nullptr;
}

void Type(QWindow& window, Qt::Key key, const QString& text, int modifiers = Qt::NoModifier) {
    QTest::sendKeyEvent(QTest::Click, &window, key, text, Qt::KeyboardModifiers(modifiers));
}

}  // namespace

Monkey::Monkey(std::uint32_t seed, int events, const QString& log, const QStringList& script)
    : thoughts_(seed), scripted_(!script.isEmpty()), script_(script), eventsLeft_(events), log_(log) {
    log_.open(QIODevice::WriteOnly);
    qInstallMessageHandler(TakeMessage);
}

int Monkey::Run() {
    while (!complaint_ && eventsLeft_ > 0 && !(scripted_ && script_.isEmpty())) {
        const QString line = scripted_ ? script_.takeFirst() : thoughts_.Start();
        if (line.startsWith(QLatin1String("start"))) {
            RunProgram(line);
        }
    }
    if (complaint_) {
        std::printf("BROKEN: %s\n", complaint_->c_str());
        return 1;
    }
    for (auto entry = tally_.cbegin(); entry != tally_.cend(); ++entry) {
        std::printf("%8d %s\n", entry.value(), qPrintable(entry.key()));
    }
    return 0;
}

void Monkey::RunProgram(const QString& start) {
    log_.write(start.toUtf8() + '\n');
    ++tally_[QStringLiteral("(programs)")];
    SeededRandom random(start.section(u' ', 1).toUInt());
    FillFolder(random);
    Program program(std::make_unique<SeededRandom>(random), SavedGamesFolder(folder_.path().toStdString()));
    program_ = &program;
    sinceEvent_.start();
    sinceSomethingToDo_.start();
    program.Start();
    startTimer(0);
    QApplication::exec();
    program_ = nullptr;
    tally_[QStringLiteral("(games over)")] += program.game().GameOver ? 1 : 0;
    for (const QWidget* left : WindowsOnScreen()) {
        complaint_ = complaint_.value_or("the program has ended, but not " + NameOf(*left).toStdString());
    }
}

void Monkey::FillFolder(SeededRandom& random) {
    // Nothing is left from one run to the next, so that each can be done again by itself.
    for (QDir folder(folder_.path()); const QString& old : folder.entryList(QDir::Files)) {
        folder.remove(old);
    }
    for (int i = 0; i < PositionsPerRun; ++i) {
        QFile file(folder_.filePath(QStringLiteral("1 position %1.vrs").arg(i)));
        file.open(QIODevice::WriteOnly);
        std::string bytes = WriteGame(RandomPosition(random));
        if (random.Draw(8) == 0) {
            bytes[static_cast<std::size_t>(random.Draw(static_cast<int>(bytes.size())))] = 'x';
        }
        file.write(QByteArray::fromStdString(bytes));
    }
}

void Monkey::timerEvent(QTimerEvent* event) {
    // A timer of its own for each event: one that is still being carried out, because a message box waits
    // for its answer, must not hold up the next.
    killTimer(event->timerId());
    if (program_ == nullptr) {
        return;
    }
    startTimer(0);
    const int depth = QThread::currentThread()->loopLevel();
    if (depth <= actingAt_) {
        return;
    }
    complaint_ = complaint_.has_value() ? complaint_ : Complaint();
    const auto line = complaint_ ? std::nullopt : NextLine();
    if (!line) {
        Finish();
        return;
    }
    const int before = std::exchange(actingAt_, depth);
    Perform(*line);
    actingAt_ = before;
}

std::optional<QString> Monkey::NextLine() {
    if (scripted_) {
        const bool more = !script_.isEmpty() && !script_.front().startsWith(QLatin1String("start"));
        return more ? std::optional(script_.takeFirst()) : std::nullopt;
    }
    return eventsLeft_ > 0 ? std::optional(thoughts_.Next(program_->game())) : std::nullopt;
}

void Monkey::Finish() {
    if (complaint_) {
        std::printf("BROKEN: %s\n", complaint_->c_str());
        for (const QWidget* window : WindowsOnScreen()) {
            std::printf("  on screen: %s, \"%s\"\n", qPrintable(NameOf(*window)),
                        qPrintable(window->windowTitle()));
        }
        std::fflush(nullptr);
        std::_Exit(1);
    }
    // A box keeps the code that asked for it waiting, so the boxes go first.
    if (QThread::currentThread()->loopLevel() == 1) {
        program_->End();
    } else if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
    } else if (QWidget* box = QApplication::activeModalWidget()) {
        box->close();
    }
}

void Monkey::Perform(const QString& line) {
    --eventsLeft_;
    const QString kind = line.section(u' ', 0, 0);
    const QString name = line.section(u' ', 1, 1);
    log_.write(line.toUtf8() + '\n');
    log_.flush();
    ++tally_[name];
    if (scripted_) {
        // Windows that a timer opens take their time, which the thoughts had spent on others.
        std::ignore = QTest::qWaitFor([&] { return WindowCalled(name) != nullptr; }, 50);
    }
    sinceEvent_.start();
    alarm(HungAfter);
    if (QWidget* window = WindowCalled(name)) {
        Perform(*window->windowHandle(), kind, line.section(u' ', 2).split(u' '));
    }
}

void Monkey::Perform(QWindow& window, const QString& kind, const QStringList& details) {
    if (kind == QLatin1String("close")) {
        window.close();
    } else if (kind == QLatin1String("activate")) {
        window.requestActivate();
    } else if (kind == QLatin1String("key")) {
        Type(window, static_cast<Qt::Key>(details[0].toInt()),
             QUrl::fromPercentEncoding(details[2].toLatin1()), details[1].toInt());
    } else if (kind == QLatin1String("type") || kind == QLatin1String("paste")) {
        const QString text = QUrl::fromPercentEncoding(details[0].toLatin1());
        Type(window, Qt::Key_A, {}, Qt::ControlModifier);
        Type(window, Qt::Key_Delete, {});
        if (kind == QLatin1String("paste")) {
            QGuiApplication::clipboard()->setText(text);
            Type(window, Qt::Key_V, {}, Qt::ControlModifier);
        } else {
            for (const QChar letter : text) {
                Type(window, Qt::Key_unknown, letter);
            }
        }
    } else {
        const QPoint place(details[0].toInt(), details[1].toInt());
        const auto button = static_cast<Qt::MouseButton>(details[2].toInt());
        if (kind == QLatin1String("hover")) {
            QTest::mouseMove(&window, place);
        } else if (kind == QLatin1String("double")) {
            QTest::mouseDClick(&window, button, {}, place);
        } else {
            QTest::mouseClick(&window, button, {}, place);
        }
    }
}

std::optional<std::string> Monkey::Complaint() {
    if (sinceEvent_.elapsed() > LongestEvent) {
        return "an event took " + std::to_string(sinceEvent_.elapsed()) + " ms";
    }
    if (!toolkitMessage.isEmpty()) {
        return "the toolkit says: " + toolkitMessage.toStdString();
    }
    if (!NothingCanBeDone()) {
        sinceSomethingToDo_.start();
    } else if (sinceSomethingToDo_.elapsed() > LongestNothing) {
        return "nothing is left to do, and the game is not over";
    }
    return IsUnderWay() ? ComplaintAboutGame() : std::nullopt;
}

std::optional<std::string> Monkey::ComplaintAboutGame() {
    const GameState& game = program_->game();
    const CommandSet given = Available();
    if (auto broken = BrokenRecords(game)) {
        return broken;
    }
    if (auto broken = BrokenCommands(game, given)) {
        return broken;
    }
    const bool hasEnded = game.GameOver || game.Current().IsDead;
    for (const QWidget* window : WindowsOnScreen()) {
        if (hasEnded && qobject_cast<const CommandDialog*>(window) != nullptr) {
            return NameOf(*window).toStdString() + " is open for somebody who can do nothing";
        }
    }
    return given.Has(Command::Save) && eventsLeft_ % EventsPerSaving == 0 ? BrokenSaving(game) : std::nullopt;
}

bool Monkey::NothingCanBeDone() const {
    const QList<QWidget*> windows = WindowsOnScreen();
    const bool boardAlone = windows.size() == 1 && windows.front() == program_->screens().board();
    return windows.isEmpty() ||
           (boardAlone && !program_->game().GameOver && Available() == CommandSet::None());
}

bool Monkey::IsUnderWay() const {
    // Before the first turn has begun, players without a territory are alive.
    const frm3* board = program_->screens().board();
    return board != nullptr && board->isVisible() && board->windowTitle() != QLatin1String("Vorlund");
}

CommandSet Monkey::Available() const {
    constexpr std::array names{"lblBuy",     "lblSell",   "lblTransport", "lblAttack",
                               "lblUpgrade", "lblStatus", "lblEndTurn",   "lblSave"};
    CommandSet available;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto* label = program_->screens().board()->findChild<QWidget*>(QLatin1String(names[i]));
        if (label->isEnabled()) {
            available = available.With(AllCommands[i]);
        }
    }
    return available;
}

}  // namespace vorlund
