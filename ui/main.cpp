// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QScreen>
#include <QToolTip>
#include <array>

#include "machine/folders.h"
#include "ui/machine/single_copy.h"
#include "ui/machine/sound_player.h"
#include "ui/parts/accessible.h"
#include "ui/parts/help_key.h"
#include "ui/parts/input_filter.h"
#include "ui/parts/look.h"
#include "ui/parts/zoom.h"
#include "ui/program.h"
#include "ui/windows/frm3.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qreal StandardDotsPerInch = 96;
constexpr int OtherCopyExitStatus = 3;  ///< tells ./play that another copy is running

}  // namespace

int main(int, char** arguments) {
    // First: this ignores SIGXFSZ, and the font cache and the lock file, written below, may hit a size limit
    // too.
    const vorlund::SavedGamesFolder saves(vorlund::DataFolder() + "/vorlund");
    // The game has no command line; do not let the toolkit parse one.
    int count = 1;
    std::array<char*, 2> name{arguments[0], nullptr};
    vorlund::SilenceSoundServerLogs();
    const QApplication application(count, name.data());
    QApplication::setApplicationName(u"vorlund"_s);
    QApplication::setApplicationVersion(QString::fromLatin1(VORLUND_VERSION));
    QApplication::setDesktopFileName(u"arpa.home.vorlund"_s);
    QApplication::setWindowIcon(vorlund::ProgramIcon());
    QApplication::setQuitOnLastWindowClosed(false);

    // Declared before the lock and the windows, so destroyed after them: its destructor waits for the click
    // of Exit, while the windows have gone and another copy can start.
    vorlund::SoundPlayer sounds(QApplication::applicationDirPath().toStdString() + VORLUND_SOUND_MODULE);
    const vorlund::SingleCopy copy;
    if (copy.OtherIsRunning()) {
        return OtherCopyExitStatus;
    }
    const vorlund::InputFilter inputFilter;
    if (const QScreen* screen = QGuiApplication::primaryScreen(); screen != nullptr) {
        vorlund::Zoom::OfApplication().Set(
            vorlund::StartingZoom(vorlund::frm3::Size, screen->availableSize(), screen->devicePixelRatio(),
                                  screen->logicalDotsPerInch() > StandardDotsPerInch));
    }
    QToolTip::setPalette(vorlund::ToolTipColours());
    vorlund::DescribeScreensToAssistiveTechnology();
    vorlund::GameState game;
    vorlund::ClockRandom random;
    vorlund::Program program(game, random, saves, sounds);
    const vorlund::HelpKey help([&program] { program.ShowRules(); });
    program.Start();
    return QApplication::exec();
}
