// SPDX-License-Identifier: MIT
#include <QFile>
#include <QProcess>
#include <QTest>

#include "machine/folders.h"
#include "tests/screens/driver.h"

namespace vorlund {
namespace {

constexpr int Timeout = 60000;  ///< milliseconds, enough for a busy machine

// A running copy of the program for the user whose home folder is `home`.
struct Copy : QProcess {
    explicit Copy(const QTemporaryDir& home) : lock(home.filePath("vorlund.lock")) {
        setProcessChannelMode(MergedChannels);
        start("env",
              {"HOME=" + home.path(), "XDG_RUNTIME_DIR=" + home.path(), "LC_ALL=C.UTF-8", VORLUND_PROGRAM});
    }

    bool HoldsTheLock() const {
        QFile file(lock);
        return file.open(QIODevice::ReadOnly) && file.readLine().trimmed().toLongLong() == processId();
    }

    QString lock;
};

TEST(Copies, OneRunsPerUserAndAKilledOneLeavesNoLock) {
    const QTemporaryDir homes[2];
    Copy ofAnotherUser(homes[1]);
    for (int round = 0; round < 2; ++round) {  // the second finds the lock file of a killed copy
        Copy first(homes[0]);
        EXPECT_TRUE(QTest::qWaitFor([&] { return first.HoldsTheLock(); }, Timeout));
        Copy seconds[]{Copy(homes[0]), Copy(homes[0]), Copy(homes[0])};
        for (Copy& second : seconds) {
            second.waitForFinished(Timeout);
            EXPECT_TRUE(second.exitStatus() == QProcess::NormalExit && second.exitCode() == 3);
            EXPECT_EQ(second.readAll(), "");
        }
        EXPECT_TRUE(first.HoldsTheLock());
        first.kill();
        first.waitForFinished(Timeout);
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return ofAnotherUser.HoldsTheLock(); }, Timeout));
    ofAnotherUser.kill();
    ofAnotherUser.waitForFinished(Timeout);
}

TEST(DataFolder, IsReadFromTheEnvironmentAsBytes) {
    qputenv("HOME", "/home/anna");
    for (const auto& [set, folder] :
         {std::pair("", "/home/anna/.local/share"), std::pair("here", "/home/anna/.local/share"),
          std::pair("/d\xE4ta", "/d\xE4ta")}) {
        qputenv("XDG_DATA_HOME", set);
        EXPECT_EQ(DataFolder(), folder);
    }
    qunsetenv("XDG_DATA_HOME");
}

}  // namespace
}  // namespace vorlund
