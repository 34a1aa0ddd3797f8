// SPDX-License-Identifier: MIT
#include "ui/windows/frm1.h"

#include <QMouseEvent>
#include <QWindow>
#include <string_view>

#include "ui/machine/sounds.h"
#include "ui/parts/announcement.h"
#include "ui/windows/title_navigation.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<std::string_view, 3> Credits{"Vorlund, a world war.", "For two to five rulers.",
                                                  "Made by the Vorlund team."};
static_assert(Credits[0].size() == 21 && Credits[1].size() == 23 && Credits[2].size() == 25);

constexpr QSize PlateSize(107, 22);  ///< of each of the three commands
constexpr int MusicDelay = 100;      ///< milliseconds of each of the two timers before the music
constexpr int TypingInterval = 40;   ///< milliseconds per character

}  // namespace

frm1::frm1(Sounds& sounds, TitleNavigation& navigation)
    : Screen(nullptr, u"frm1"_s, u"Vorlund"_s, QSize(400, 223), {}, Qt::Window | Qt::FramelessWindowHint),
      sounds_(sounds),
      navigation_(navigation),
      earth_(u"earth"_s, u"Vorlund, under a picture of the earth"_s) {
    auto* imgEarth = new PictureLabel(this, u"imgEarth"_s, QRect(96, 16, 208, 100));
    imgEarth->Show(&earth_);
    for (int line = 0; line < 3; ++line) {
        TextLabel* label =
            AddText(u"lbl%1"_s.arg(line + 1), Face::Caption, QRect(16, 128 + 24 * line, 185, 25));
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        QPalette green = label->palette();
        green.setColor(QPalette::WindowText, QColor(colour::Heading));
        label->setPalette(green);
        credits_[static_cast<std::size_t>(line)] = label;
    }
    AddCommands();
    HoverOneAtATime();
    StartTimers();
}

void frm1::AddCommands() {
    const auto add = [this](const QString& name, const QString& caption, const QRect& box,
                            void (TitleNavigation::*run)()) {
        CommandLabel* command = AddCommand(name, caption, box);
        command->SetPlate(PlateSize);
        connect(command, &CommandLabel::clicked, this, [this, run] {
            sounds_.PlayWave(Wave::Beep);
            (navigation_.*run)();
        });
    };
    add(u"lblPlay"_s, u"Play Game"_s, QRect(248, 128, 85, 19), &TitleNavigation::PlayGame);
    add(u"lblLoad"_s, u"Load Game"_s, QRect(246, 152, 89, 19), &TitleNavigation::LoadGame);
    add(u"lblExit"_s, u"Exit"_s, QRect(275, 176, 31, 19), &TitleNavigation::End);
}

void frm1::StartTimers() {
    tmr1_.setInterval(MusicDelay);
    tmr2_.setInterval(MusicDelay);
    tmr3_.setInterval(TypingInterval);
    connect(&tmr1_, &QTimer::timeout, this, [this] {
        tmr2_.start();
        tmr1_.stop();
    });
    connect(&tmr2_, &QTimer::timeout, this, [this] {
        sounds_.PlayWave(Wave::Vrl1);
        tmr2_.stop();
    });
    connect(&tmr3_, &QTimer::timeout, this, &frm1::TypeCredit);
    tmr1_.start();
    tmr3_.start();
}

void frm1::TypeCredit() {
    auto typed = static_cast<std::size_t>(CreditTicks_);
    for (std::size_t line = 0; line < Credits.size(); ++line) {
        if (typed < Credits[line].size()) {
            ++CreditTicks_;
            credits_[line]->Show(Credits[line].substr(0, typed + 1));
            return;
        }
        typed -= Credits[line].size();
    }
    tmr3_.stop();
    if (isVisible()) {
        QStringList credits;
        for (const TextLabel* label : credits_) {
            credits << label->text();
        }
        Announce(*this, credits.join(u'\n'));
    }
}

bool frm1::HandleCloseRequest() {
    navigation_.End();
    return true;
}

void frm1::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        dragOffset_ = event->globalPosition().toPoint() - pos();
        dragging_ = true;
    }
}

void frm1::mouseMoveEvent(QMouseEvent* event) {
    // Let the window manager move the window if it can. Started at the first movement, not at the press: if
    // the button is released before the window manager grabs the pointer, it never sees the release and the
    // move does not end.
    dragging_ = dragging_ && !windowHandle()->startSystemMove();
    if (dragging_) {
        move(event->globalPosition().toPoint() - dragOffset_);
    }
    Screen::mouseMoveEvent(event);
}

void frm1::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        dragging_ = false;
    }
}

}  // namespace vorlund
