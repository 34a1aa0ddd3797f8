#include <QApplication>
#include <QStandardPaths>
#include <array>
#include <optional>

#include "ui/machine/early_fonts.h"
#include "ui/machine/single_copy.h"
#include "ui/parts/accessible.h"
#include "ui/parts/held_keys.h"
#include "ui/program.h"

namespace {

constexpr int AnotherCopyRuns = 3;  // the exit status by which ./play knows, for the copy itself says nothing

}  // namespace

int main(int, char** arguments) {
    // The game has no command line, so the toolkit gets none either.
    int count = 1;
    std::array<char*, 2> name{arguments[0], nullptr};
    std::optional<vorlund::EarlyFonts> fonts(std::in_place);
    const QApplication application(count, name.data());
    fonts.reset();
    QApplication::setApplicationName(QStringLiteral("vorlund"));
    QApplication::setDesktopFileName(QStringLiteral("arpa.home.vorlund"));
    QApplication::setQuitOnLastWindowClosed(false);

    const vorlund::SingleCopy copy;
    if (copy.OtherIsRunning()) {
        return AnotherCopyRuns;
    }
    vorlund::HeldKeys heldKeys;
    qApp->installEventFilter(&heldKeys);
    vorlund::DescribeScreensToAssistiveTechnology();
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    vorlund::Program program(std::make_unique<vorlund::ClockRandom>(),
                             vorlund::SavedGamesFolder((data + QStringLiteral("/vorlund")).toStdString()));
    program.Start();
    return QApplication::exec();
}
