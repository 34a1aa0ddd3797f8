#include <signal.h>

#include <QFile>
#include <QProcess>
#include <QTest>
#include <memory>

#include "tests/screens/hands.h"

// The real program, started more than once.

namespace vorlund {
namespace {

constexpr int Patience = 60000;  // milliseconds; a busy machine may take its time

// A copy started by the user who has this home.
struct Copy : QProcess {
    explicit Copy(const QTemporaryDir& home) : lock(home.filePath("vorlund.lock")) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", home.path());
        environment.insert("XDG_RUNTIME_DIR", home.path());
        setProcessEnvironment(environment);
        setProcessChannelMode(MergedChannels);
        start(VORLUND_PROGRAM, QStringList());
    }
    ~Copy() override { Kill(); }
    Copy(const Copy&) = delete;
    Copy& operator=(const Copy&) = delete;

    void Kill() {
        kill();
        waitForFinished(Patience);
    }

    bool HoldsTheLock() const {
        QFile file(lock);
        return file.open(QIODevice::ReadOnly) && file.readLine().trimmed().toLongLong() == processId();
    }

    bool EndsQuietly() {
        return (state() == NotRunning || waitForFinished(Patience)) && exitStatus() == NormalExit &&
               exitCode() == 0 && readAll().isEmpty();
    }

    QString lock;
};

TEST(Copies, OneOfManyStaysAndAnotherCanFollowIt) {
    const QTemporaryDir home;
    for (int round = 0; round < 2; ++round) {  // the first round's copy is killed and leaves its lock behind
        std::vector<std::unique_ptr<Copy>> copies(10);
        std::generate(copies.begin(), copies.end(), [&home] { return std::make_unique<Copy>(home); });
        const auto running = [&copies] {
            return std::count_if(copies.begin(), copies.end(),
                                 [](const auto& copy) { return copy->state() != QProcess::NotRunning; });
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return running() == 1; }, Patience));
        for (const auto& copy : copies) {
            EXPECT_TRUE(copy->state() == QProcess::NotRunning ? copy->EndsQuietly() : copy->HoldsTheLock());
        }
    }
}

TEST(Copies, AnotherUserHasAGameOfTheirOwn) {
    const QTemporaryDir homes[2];
    const Copy one(homes[0]);
    const Copy other(homes[1]);
    EXPECT_TRUE(QTest::qWaitFor([&] { return one.HoldsTheLock() && other.HoldsTheLock(); }, Patience));
}

}  // namespace
}  // namespace vorlund
