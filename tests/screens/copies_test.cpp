#include <signal.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <vector>

namespace {

constexpr int Patience = 60000;  // milliseconds; a busy machine may take its time

// One started copy of the real program, for a user of its own.
class Copy {
public:
    explicit Copy(const QTemporaryDir& home) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", home.path());
        environment.insert("XDG_RUNTIME_DIR", home.path());
        process_.setProcessEnvironment(environment);
        process_.setProcessChannelMode(QProcess::MergedChannels);
        process_.start(VORLUND_PROGRAM, {});
    }
    ~Copy() { Kill(); }

    bool HasEnded() { return process_.state() == QProcess::NotRunning; }

    // True when this copy ends by itself, well, and without a word.
    bool EndsQuietly() {
        return (HasEnded() || process_.waitForFinished(Patience)) &&
               process_.exitStatus() == QProcess::NormalExit && process_.exitCode() == 0 &&
               process_.readAll().isEmpty();
    }

    // True when this copy is the one that holds the lock.
    bool IsTheOne(const QTemporaryDir& home) {
        QFile lock(home.filePath("vorlund.lock"));
        return lock.open(QIODevice::ReadOnly) &&
               lock.readLine().trimmed().toLongLong() == process_.processId() && !HasEnded();
    }

    void Kill() {
        if (!HasEnded()) {
            kill(static_cast<pid_t>(process_.processId()), SIGKILL);
            process_.waitForFinished(Patience);
        }
    }

private:
    QProcess process_;
};

}  // namespace

class CopiesTest : public QObject {
    Q_OBJECT

private slots:
    void ASecondCopyEndsAtOnce();
    void OfTwentyAtOnceOneIsLeft();
    void AnotherUserHasAGameOfTheirOwn();
};

void CopiesTest::ASecondCopyEndsAtOnce() {
    const QTemporaryDir home;
    Copy first(home);
    QTRY_VERIFY_WITH_TIMEOUT(first.IsTheOne(home), Patience);
    for (int i = 0; i < 2; ++i) {
        Copy second(home);
        QVERIFY(second.EndsQuietly());
    }
    QVERIFY(first.IsTheOne(home));
    first.Kill();
    Copy next(home);
    QTRY_VERIFY_WITH_TIMEOUT(next.IsTheOne(home), Patience);
    Copy late(home);
    QVERIFY(late.EndsQuietly());
    QVERIFY(next.IsTheOne(home));
}

void CopiesTest::OfTwentyAtOnceOneIsLeft() {
    const QTemporaryDir home;
    std::vector<std::unique_ptr<Copy>> copies;
    for (int i = 0; i < 20; ++i) {
        copies.push_back(std::make_unique<Copy>(home));
    }
    const auto left = [&copies] {
        return std::count_if(copies.begin(), copies.end(),
                             [](const auto& copy) { return !copy->HasEnded(); });
    };
    QTRY_COMPARE_WITH_TIMEOUT(left(), 1, Patience);
    for (const auto& copy : copies) {
        QVERIFY(copy->IsTheOne(home) || copy->EndsQuietly());
    }
    QCOMPARE(left(), 1);
}

void CopiesTest::AnotherUserHasAGameOfTheirOwn() {
    const QTemporaryDir home;
    const QTemporaryDir otherHome;
    Copy one(home);
    Copy other(otherHome);
    QTRY_VERIFY_WITH_TIMEOUT(one.IsTheOne(home) && other.IsTheOne(otherHome), Patience);
}

QTEST_GUILESS_MAIN(CopiesTest)
#include "copies_test.moc"
