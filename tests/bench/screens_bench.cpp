#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <optional>
#include <string_view>
#include <vector>

#include "tests/bench/first_paint.h"
#include "tests/engine/games.h"
#include "tests/engine/seeded_random.h"
#include "ui/early_fonts.h"
#include "ui/frm3.h"
#include "ui/program.h"

// What the screens cost, as ratios and times of one run, in a table: start and memory against a bare window
// of the toolkit, a key to its dialog's paint, a redrawn map, a sound, and what an idle game does.

namespace vorlund {
namespace {

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Runs a program to its end; milliseconds, or the number it printed.
double Run(const QString& program, const QStringList& arguments, bool printed) {
    QProcess process;
    QElapsedTimer clock;
    clock.start();
    process.start(program, arguments);
    process.waitForFinished();
    const double elapsed = static_cast<double>(clock.nsecsElapsed()) / 1e6;
    return printed ? process.readAllStandardOutput().trimmed().toDouble() : elapsed;
}

/// The ratio of two programs run by turns, each as often.
double Ratio(const QString& mode, const QString& bareMode, bool printed) {
    constexpr int runs = 21;
    std::vector<double> own;
    std::vector<double> bare;
    for (int i = 0; i < runs; ++i) {
        own.push_back(Run(QCoreApplication::applicationFilePath(), {mode}, printed));
        bare.push_back(Run(QStringLiteral(BARE_WINDOW), {bareMode}, printed));
    }
    std::printf("  (%.1f against %.1f)\n", Median(own), Median(bare));
    return Median(own) / Median(bare);
}

void Row(const char* what, double value, const char* unit, double budget) {
    std::printf("%-58s %9.3f %-3s budget %8.3f  %s\n", what, value, unit, budget,
                value <= budget ? "met" : "MISSED");
}

/// A full board of five players, for the human whose turn it is.
GameState FullBoard() {
    SeededRandom random(7);
    GameState game = RandomPosition(random);
    while (game.Current().IsComputer || game.Current().IsDead || game.GameOver || game.Current().FirstTurn) {
        game = RandomPosition(random);
    }
    game.GameLoaded = true;
    return game;
}

struct Desk {
    Desk() : program(std::make_unique<ClockRandom>(), SavedGamesFolder(folder.path().toStdString())) {}

    void OpenBoard() {
        program.Start();
        program.game() = FullBoard();
        program.OpenBoard();
    }

    QTemporaryDir folder;
    Program program;
};

/// Counts what the program itself does while nobody touches it.
class IdleWatch : public QObject {
public:
    int Busy = 0;

    bool eventFilter(QObject*, QEvent* event) override {
        Busy += event->type() == QEvent::Paint || event->type() == QEvent::Timer ? 1 : 0;
        return false;
    }
};

int BusyWithin(int milliseconds) {
    IdleWatch watch;
    qApp->installEventFilter(&watch);
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < milliseconds) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 50);
        QCoreApplication::processEvents();
    }
    return watch.Busy;
}

/// Waits for the first paint of a dialog after its key has been pressed.
class DialogPaint : public QObject {
public:
    bool Painted = false;

    bool eventFilter(QObject* watched, QEvent* event) override {
        Painted = Painted || (event->type() == QEvent::UpdateRequest && watched->objectName() != "frm3" &&
                              qobject_cast<QWidget*>(watched) != nullptr);
        return false;
    }
};

double SlowestKeyToPaint(Program& program) {
    double slowest = 0;
    for (const char* key : {"b", "s", "r", "a", "u", "t", "v"}) {
        DialogPaint paint;
        qApp->installEventFilter(&paint);
        QElapsedTimer clock;
        clock.start();
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromLatin1(key));
        QCoreApplication::sendEvent(program.screens().board(), &press);
        while (!paint.Painted && clock.elapsed() < 2000) {
            QCoreApplication::processEvents();
        }
        slowest = std::max(slowest, static_cast<double>(clock.nsecsElapsed()) / 1e6);
        program.screens().CloseDialogs();
        program.screens().RestoreCommands();
        QCoreApplication::processEvents();
    }
    return slowest;
}

double SlowestSound(Program& program) {
    double slowest = 0;
    for (int i = 0; i < 200; ++i) {
        QElapsedTimer clock;
        clock.start();
        program.sound().PlayWave("GUN");
        slowest = std::max(slowest, static_cast<double>(clock.nsecsElapsed()) / 1e6);
    }
    return slowest;
}

double OneRefresh(Program& program) {
    constexpr int times = 500;
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < times; ++i) {
        program.screens().RefreshMap();
    }
    return static_cast<double>(clock.nsecsElapsed()) / 1e6 / times;
}

void PrintTable() {
    Row("start to the title's first paint, to a bare window", Ratio("title", "start", false), "x", 1.5);
    Row("memory with the board up, to a bare window", Ratio("board", "memory", true), "x", 2);
    {
        Desk title;
        title.program.Start();
        BusyWithin(4000);
        Row("paints and timers of the idle title, in 3 seconds", BusyWithin(3000), "", 0);
    }
    Desk desk;
    desk.OpenBoard();
    BusyWithin(1000);
    Row("paints and timers of the idle board, in 3 seconds", BusyWithin(3000), "", 0);
    Row("key to the dialog's first paint, the slowest of seven", SlowestKeyToPaint(desk.program), "ms",
        1000.0 / 60);
    Row("one whole redraw of the map", OneRefresh(desk.program), "ms", 1000.0 / 60);
    Row("a sound asked for, the slowest of 200", SlowestSound(desk.program), "ms", 1);
}

}  // namespace
}  // namespace vorlund

int main(int argc, char** argv) {
    std::optional<vorlund::EarlyFonts> fonts(std::in_place);
    const QApplication application(argc, argv);
    fonts.reset();
    QApplication::setQuitOnLastWindowClosed(false);
    const std::string_view mode = argc > 1 ? argv[1] : "";
    if (mode.empty()) {
        vorlund::PrintTable();
        return 0;
    }
    FirstPaint firstPaint(mode == "board");
    vorlund::Desk desk;
    if (mode == "board") {
        desk.OpenBoard();
        qApp->installEventFilter(&firstPaint);
    } else {
        qApp->installEventFilter(&firstPaint);
        desk.program.Start();
    }
    return QApplication::exec();
}
