#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <cstdio>
#include <cstdlib>
#include <functional>

#include "tests/monkey/monkey.h"
#include "ui/held_keys.h"

namespace vorlund {
namespace {

constexpr int DefaultEvents = 200000;
constexpr std::uint32_t DefaultSeed = 1;
constexpr qint64 ShorteningTime = 120000;  // milliseconds

int FromEnvironment(const char* name, int otherwise) {
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
}

QStringList LinesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
                                          : QStringList();
}

/// Whatever goes wrong in there, the process that asked lives on to tell of it.
bool FailsInChild(const std::function<int()>& work, bool quiet) {
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        if (quiet) {
            std::freopen("/dev/null", "w", stdout);
            std::freopen("/dev/null", "w", stderr);
        }
        std::exit(work());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return !WIFEXITED(status) || WEXITSTATUS(status) != 0;
}

int Play(std::uint32_t seed, int events, const QString& log, const QStringList& script) {
    int count = 1;
    char name[] = "monkey";
    char* arguments[] = {name, nullptr};
    const QApplication application(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    HeldKeys heldKeys;
    qApp->installEventFilter(&heldKeys);
    return Monkey(seed, events, log, script).Run();
}

/// Leaves out of `lines`, which fail, what the failure does not need, for as long as there is time.
QStringList Shortened(QStringList lines) {
    QElapsedTimer clock;
    clock.start();
    const auto fails = [&](const QStringList& script) {
        return clock.elapsed() < ShorteningTime &&
               FailsInChild(
                   [&] {
                       return Play(0, static_cast<int>(script.size()), QStringLiteral("/dev/null"), script);
                   },
                   true);
    };
    lines = lines.mid(lines.lastIndexOf(QRegularExpression(QStringLiteral("start .*"))));
    if (!fails(lines)) {
        std::printf("(It does not happen again by itself; the end of the last run of the program:)\n");
        return lines.mid(lines.size() - 400);
    }
    for (qsizetype length = lines.size() / 2; length > 0; length /= 2) {
        for (qsizetype at = 1; at < lines.size();) {
            const QStringList without = lines.mid(0, at) + lines.mid(at + length);
            if (fails(without)) {
                lines = without;
            } else {
                at += length;
            }
        }
    }
    return lines;
}

int Main() {
    // The sounds are played, but into the void.
    setenv("SDL_AUDIODRIVER", "dummy", 0);
    const auto seed = static_cast<std::uint32_t>(FromEnvironment("VORLUND_SEED", DefaultSeed));
    const int events = FromEnvironment("VORLUND_EVENTS", DefaultEvents);
    const QStringList script = LinesOf(qEnvironmentVariable("VORLUND_SCRIPT"));
    const QTemporaryDir folder;
    const QString log = folder.filePath(QStringLiteral("events"));
    std::printf("%d events from seed %u\n", events, seed);
    if (!FailsInChild([&] { return Play(seed, events, log, script); }, false)) {
        return 0;
    }
    const QStringList lines = LinesOf(log);
    std::printf("%lld events led to that. The shortest way there that was found, for VORLUND_SCRIPT:\n",
                static_cast<long long>(lines.size()));
    for (const QString& line : Shortened(lines)) {
        std::printf("%s\n", qPrintable(line));
    }
    return 1;
}

}  // namespace
}  // namespace vorlund

/// Does VORLUND_EVENTS random events (200,000 if unset) from VORLUND_SEED (1) to the program's windows, or
/// those of the file VORLUND_SCRIPT, up to the first that breaks something.
int main() {
    return vorlund::Main();
}
