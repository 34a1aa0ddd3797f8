// SPDX-License-Identifier: MIT
#include <QFile>
#include <QProcess>
#include <QTest>

#include "tests/screens/hands.h"
#include "ui/machine/data_folder.h"

namespace vorlund {
namespace {

constexpr int Patience = 60000;  // milliseconds; a busy machine may take its time

// A copy of the real program, started by the user who has this home.
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

TEST(Copies, OneStaysAndAnotherCanFollowIt) {
    const QTemporaryDir homes[2];
    Copy ofAnotherUser(homes[1]);
    for (int round = 0; round < 2; ++round) {  // the first round's copy is killed and leaves its lock behind
        Copy first(homes[0]);
        EXPECT_TRUE(QTest::qWaitFor([&] { return first.HoldsTheLock(); }, Patience));
        Copy seconds[]{Copy(homes[0]), Copy(homes[0]), Copy(homes[0])};
        for (Copy& second : seconds) {
            second.waitForFinished(Patience);
            EXPECT_TRUE(second.exitStatus() == QProcess::NormalExit && second.exitCode() == 3);
            EXPECT_EQ(second.readAll(), "");
        }
        EXPECT_TRUE(first.HoldsTheLock());
        first.kill();
        first.waitForFinished(Patience);
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return ofAnotherUser.HoldsTheLock(); }, Patience));
    ofAnotherUser.kill();
    ofAnotherUser.waitForFinished(Patience);
}

TEST(DataFolder, IsNamedByTheBytesOfTheEnvironment) {
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
