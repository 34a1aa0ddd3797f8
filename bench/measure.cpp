// SPDX-License-Identifier: MIT
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QProcess>
#include <QThread>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "bench/first_paint.h"
#include "tests/engine/games.h"
#include "tests/rules/small_worlds.h"
#include "ui/machine/sound_player.h"
#include "ui/parts/zoom.h"
#include "ui/program.h"
#include "ui/windows/board_window.h"

// Prints a table of the game's costs and their budgets. Called with "title" or "board", it is the measured
// program instead: the game with that window.

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

void Row(const char* what, double value, const char* unit, double budget) {
    std::printf("%-58s %9.3f %-3s budget %8.3f  %s\n", what, value, unit, budget,
                value <= budget ? "met" : "MISSED");
}

double ElapsedMilliseconds(const QElapsedTimer& clock) {
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

template <class Function>
double Milliseconds(Function function) {
    QElapsedTimer clock;
    clock.start();
    function();
    return ElapsedMilliseconds(clock);
}

/// A child process that shows one window.
struct Child : QProcess {
    Child(const QString& program, const QString& window) {
        StartToPaint = Milliseconds([&] {
            start(program, {window});
            waitForReadyRead();
        });
    }
    ~Child() override {
        kill();
        waitForFinished();
    }

    std::string Folder() const { return "/proc/" + std::to_string(processId()); }

    double StartToPaint = 0;  ///< milliseconds
};

/// The number after the word `key` in a file.
double NumberIn(const std::string& path, const std::string& key) {
    std::ifstream file(path);
    double number = std::nan("");  // without the word: exceeds every budget
    for (std::string word; file >> word && word != key;) {
    }
    file >> number;
    return number;
}

double MemoryKibibytes(const Child& child) {
    QThread::sleep(1);
    return NumberIn(child.Folder() + "/smaps_rollup", "Pss:");
}

/// The voluntary context switches of all threads: one for each time that a thread woke up.
double WakeUps(const Child& child) {
    double sum = 0;
    for (const auto& thread : std::filesystem::directory_iterator(child.Folder() + "/task")) {
        sum += NumberIn(thread.path() / "status", "voluntary_ctxt_switches:");
    }
    return sum;
}

double IdleWakeUps(const QString& window) {
    const Child child(QApplication::applicationFilePath(), window);
    QThread::sleep(13);  // until the title's credits and music have ended
    const double before = WakeUps(child);
    QThread::sleep(3);
    return WakeUps(child) - before;
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The median cost of the game with this window divided by that of a bare window, measured alternately.
double RatioToBareWindow(const QString& window, int runs, double (*cost)(const Child&)) {
    std::vector<double> game;
    std::vector<double> bare;
    for (int i = 0; i < runs; ++i) {
        game.push_back(cost(Child(QApplication::applicationFilePath(), window)));
        bare.push_back(cost(Child(QString::fromUtf8(BARE_WINDOW), window)));
    }
    std::printf("  (%.1f against %.1f)\n", Median(game), Median(bare));
    return Median(game) / Median(bare);
}

/// The program's objects, as in ui/main.cpp.
struct Run {
    GameState Game;
    ClockRandom Chance;
    SavedGamesFolder Saves{"/none"};
    SoundPlayer Sounds{SOUND_MODULE};
    Program Windows{Game, Chance, Saves, Sounds};
};

/// Opens the board with every territory owned, after playing a recording.
void OpenBoard(Run& run) {
    run.Game = NewGame(5);
    for (int t = 0; t < NumTerritories; ++t) {
        Give(run.Game, t, t % 5, t, t % 4);
    }
    run.Game.GameLoaded = true;
    run.Sounds.PlayWave(Wave::Beep);
    run.Windows.OpenBoard();
}

/// The visible window of the class `type`.
QWidget& Shown(const char* type) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->inherits(type)) {
            return *window;
        }
    }
    qFatal("there is no %s", type);
}

/// The longest time from a key press on the board to the first paint of its dialog, in milliseconds.
double SlowestKey() {
    double slowest = 0;
    for (const QChar key : u"bsrautv"_s) {
        QElapsedTimer clock;
        FirstPaint paint("vorlund::CommandDialog",
                         [&] { slowest = std::max(slowest, ElapsedMilliseconds(clock)); });
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, key);
        clock.start();
        QApplication::sendEvent(&Shown("vorlund::frm3"), &press);
        paint.exec();
        Shown("vorlund::CommandDialog").close();
        QApplication::processEvents();
    }
    return slowest;
}

/// The milliseconds of RefreshMap after a territory has changed hands, for each territory: of the call, and
/// of the call with the painting that it causes.
std::pair<double, double> MedianRefresh(Run& run) {
    auto& board = dynamic_cast<BoardWindow&>(Shown("vorlund::frm3"));
    std::vector<double> calls;
    std::vector<double> painted;
    for (int t = 0; t < NumTerritories; ++t) {
        const int loser = run.Game.TerritoryAt(t).Owner;
        Abandon(run.Game, t);
        Give(run.Game, t, (loser + 1) % MaxPlayers, t + 1);
        calls.push_back(Milliseconds([&] { board.RefreshMap(); }));
        painted.push_back(calls.back() + Milliseconds([] { QApplication::processEvents(); }));
    }
    return {Median(calls), Median(painted)};
}

/// The milliseconds of RefreshMap and the painting that it causes when every territory has another owner.
double MedianReload(Run& run) {
    auto& board = dynamic_cast<BoardWindow&>(Shown("vorlund::frm3"));
    std::vector<double> painted;
    for (int load = 0; load < 5; ++load) {
        for (int t = 0; t < NumTerritories; ++t) {
            const int loser = run.Game.TerritoryAt(t).Owner;
            Abandon(run.Game, t);
            Give(run.Game, t, (loser + 1) % MaxPlayers, t + load);
        }
        painted.push_back(Milliseconds([&] {
            board.RefreshMap();
            QApplication::processEvents();
        }));
    }
    return Median(painted);
}

double SlowestSound(Sounds& sounds) {
    double slowest = 0;
    for (int i = 0; i < 200; ++i) {
        slowest = std::max(slowest, Milliseconds([&] { sounds.PlayWave(Wave::Gun); }));
    }
    return slowest;
}

/// Plays games of four computers and a human who only ends the turn. The human's turns are not counted, but
/// their time and the recorder's is included.
double MicrosecondsATurn() {
    GameState start = NewGame(5);
    for (int p = 0; p < 5; ++p) {
        Give(start, 8 * p, p, 10);
        start.PlayerAt(p).IsComputer = p > 0;
    }
    RecordedGame played(1);
    played.Game = start;
    constexpr int Turns = 200'000;
    const double elapsed = Milliseconds([&] {
        for (int turns = 0; turns < Turns; turns += played.Game.ComputerTurnEnded ? 1 : 0) {
            if (played.Game.GameOver) {
                played.Game = start;
            }
            if (!played.Turn.ReportClosed()) {
                played.Turn.EndTurn();
            }
            played.Seen.Calls.clear();
        }
    });
    return elapsed * 1000 / Turns;
}

void PrintRefresh(Run& run) {
    QApplication::processEvents();
    const auto [refresh, refreshed] = MedianRefresh(run);
    Row("RefreshMap after a battle, the median of 42", refresh, "ms", 0.5);
    Row("and with the painting of what has changed", refreshed, "ms", 1000.0 / 60);
    Row("RefreshMap and painting after a whole load, the median of 5", MedianReload(run), "ms", 100);
}

void PrintTable(Run& run) {
    Row("start to the title's first paint, to a bare window's",
        RatioToBareWindow("title", 21, [](const Child& child) { return child.StartToPaint; }), "x", 1.4);
    Row("memory with the board up, to a bare window's", RatioToBareWindow("board", 5, MemoryKibibytes), "x",
        2);
    Row("wake-ups of the idle title, in 3 seconds", IdleWakeUps("title"), "", 0);
    Row("wake-ups of the idle board, in 3 seconds", IdleWakeUps("board"), "", 0);
    Row("a computer's turn, rules only, the mean of 200,000", MicrosecondsATurn(), "us", 10);
    run.Windows.Start();
    OpenBoard(run);
    QEventLoop settle;
    QTimer::singleShot(1000, &settle, &QEventLoop::quit);
    settle.exec();  // the board has been painted before the first key
    Row("key to the dialog's first paint, the slowest of seven", SlowestKey(), "ms", 1000.0 / 60);
    PrintRefresh(run);
    Zoom::OfApplication().Set(2.0);
    std::puts("at zoom 2:");
    PrintRefresh(run);
    Row("a sound asked for, the slowest of 200", SlowestSound(run.Sounds), "ms", 1);
}

}  // namespace
}  // namespace vorlund

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    vorlund::Run run;
    if (argc == 1) {
        vorlund::PrintTable(run);
        return 0;
    }
    run.Windows.Start();
    if (argv[1] == std::string_view("board")) {
        vorlund::OpenBoard(run);
    }
    return TellPaintAndStay();
}
