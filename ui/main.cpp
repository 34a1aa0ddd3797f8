// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QScreen>
#include <array>

#include "ui/machine/data_folder.h"
#include "ui/machine/single_copy.h"
#include "ui/machine/sound_player.h"
#include "ui/parts/accessible.h"
#include "ui/parts/input_filter.h"
#include "ui/parts/look.h"
#include "ui/parts/zoom.h"
#include "ui/program.h"
#include "ui/windows/frm3.h"

namespace {

constexpr qreal UsualDotsPerInch = 96;
constexpr int AnotherCopyRuns = 3;  // the exit status by which ./play knows, for the copy itself says nothing

}  // namespace

int main(int, char** arguments) {
    // First, because it makes a file size limit harmless, and fonts and lock write files too
    const vorlund::SavedGamesFolder saves(vorlund::DataFolder() + "/vorlund");
    // The game has no command line, so the toolkit gets none either.
    int count = 1;
    std::array<char*, 2> name{arguments[0], nullptr};
    vorlund::QuietenSoundServers();
    const QApplication application(count, name.data());
    QApplication::setApplicationName(QStringLiteral("vorlund"));
    QApplication::setApplicationVersion(QStringLiteral(VORLUND_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("arpa.home.vorlund"));
    QApplication::setWindowIcon(vorlund::ProgramIcon());
    QApplication::setQuitOnLastWindowClosed(false);

    // It goes last: the click of Exit is still heard when the windows are gone and another copy may start.
    vorlund::SoundPlayer sounds(QApplication::applicationDirPath().toStdString() + VORLUND_SOUND_MODULE);
    const vorlund::SingleCopy copy;
    if (copy.OtherIsRunning()) {
        return AnotherCopyRuns;
    }
    const vorlund::InputFilter inputFilter;
    if (const QScreen* screen = QGuiApplication::primaryScreen(); screen != nullptr) {
        const bool scaled =
            screen->devicePixelRatio() != 1.0 || screen->logicalDotsPerInch() > UsualDotsPerInch;
        vorlund::Zoom::OfApplication().Set(
            vorlund::StartingZoom(vorlund::frm3::Size, screen->availableSize(), scaled));
    }
    vorlund::DescribeScreensToAssistiveTechnology();
    vorlund::GameState game;
    vorlund::ClockRandom random;
    vorlund::Program program(game, random, saves, sounds);
    program.Start();
    return QApplication::exec();
}
