#include <QApplication>
#include <QStandardPaths>
#include <array>

#include "ui/machine/single_copy.h"
#include "ui/machine/sound.h"
#include "ui/parts/accessible.h"
#include "ui/parts/held_keys.h"
#include "ui/program.h"

int main(int, char** arguments) {
    // The game has no command line, so the toolkit gets none either.
    int count = 1;
    std::array<char*, 2> name{arguments[0], nullptr};
    const QApplication application(count, name.data());
    QApplication::setApplicationName(QStringLiteral("vorlund"));
    QApplication::setDesktopFileName(QStringLiteral("arpa.home.vorlund"));
    QApplication::setQuitOnLastWindowClosed(false);

    const vorlund::SingleCopy copy;
    if (copy.OtherIsRunning()) {
        return 0;
    }
    vorlund::HeldKeys heldKeys;
    qApp->installEventFilter(&heldKeys);
    vorlund::DescribeScreensToAssistiveTechnology();
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    vorlund::Sound sound;
    vorlund::Program program(std::make_unique<vorlund::ClockRandom>(),
                             vorlund::SavedGamesFolder((data + QStringLiteral("/vorlund")).toStdString()),
                             sound);
    program.Start();
    return QApplication::exec();
}
