#include "ui/parts/screen.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>

namespace vorlund {
namespace {

constexpr int FieldHeight = 19;
constexpr int FocusRing = 3;  // pixels round a field

Qt::WindowFlags WithFrame(Qt::WindowFlags flags) {
    if (flags.testFlag(Qt::FramelessWindowHint)) {
        return flags;
    }
    flags |=
        Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    // A minimised dialog or report would leave a board without commands and no way back.
    const bool dialog = (flags & Qt::WindowType_Mask) == Qt::Dialog;
    return dialog ? flags : flags | Qt::WindowMinimizeButtonHint;
}

}  // namespace

Screen::Screen(QWidget* owner, const QString& name, const QString& title, QSize size,
               const QString& background, Qt::WindowFlags flags)
    : QWidget(owner, WithFrame(flags)),
      background_(background.isEmpty() ? name : background),
      role_(windowType() == Qt::Dialog ? QAccessible::Dialog : QAccessible::Window) {
    setObjectName(name);
    setWindowTitle(title);
    setFixedSize(size);
    setMouseTracking(true);
    QPalette black = palette();
    black.setColor(QPalette::Window, colour::Window);
    // If its colours differ then, the toolkit paints a window anew when it comes to the front or leaves it.
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        const auto colour = static_cast<QPalette::ColorRole>(role);
        black.setBrush(QPalette::Inactive, colour, black.brush(QPalette::Active, colour));
    }
    setPalette(black);
    setFont(FontOf(Face::Field));  // of what is typed into and chosen from: it is made with its window's font
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* before, QWidget* now) {
        for (const QWidget* changed : {before, now}) {
            if (changed != nullptr && changed->parentWidget() == this) {
                update(changed->geometry().adjusted(-FocusRing, -FocusRing, FocusRing, FocusRing));
            }
        }
    });
}

void Screen::CloseOutright() {
    outright_ = true;
    close();
    outright_ = false;
}

void Screen::Present() {
    if (!testAttribute(Qt::WA_Moved) && parentWidget() == nullptr && screen() != nullptr) {
        QRect place(QPoint(0, 0), size());
        place.moveCenter(screen()->availableGeometry().center());
        move(place.topLeft());
    }
    ++timesPresented_;
    RestCommands();
    show();
    raise();
    activateWindow();
}

void Screen::SetTitle(std::string_view title) {
    setWindowTitle(Displayed(title).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

TextLabel* Screen::AddText(const QString& name, Face face, const QRect& frame, std::string_view text) {
    auto* label = new TextLabel(this, name, face, frame);
    label->Show(text);
    return label;
}

Field* Screen::AddField(TextLabel* caption, const QString& name, QPoint position, int maxLength, int width) {
    auto* field = new Field(this, name, QRect(position, QSize(width, FieldHeight)), maxLength);
    caption->setBuddy(field);
    return field;
}

CommandLabel* Screen::AddCommand(const QString& name, const QString& caption, const QRect& box) {
    auto* command = new CommandLabel(this, name, caption, box);
    commands_.push_back(command);
    connect(command, &CommandLabel::Lit, this, [this, command] {
        if (oneAtATime_) {
            RestCommands(command);
        }
    });
    return command;
}

void Screen::AddLine(const QString& name, QPoint from, int length) {
    auto* line = new QWidget(this);
    line->setObjectName(name);
    line->setGeometry(QRect(from, QSize(length, 1)));
    QPalette ink = line->palette();
    ink.setColor(QPalette::Window, QColor(96, 112, 140));
    line->setPalette(ink);
    line->setAutoFillBackground(true);
    line->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Screen::closeEvent(QCloseEvent* event) {
    // One that is not on the screen has been closed before; a second request may come until it is gone.
    const bool closes = outright_ || !isVisible() || CloseRequested();
    event->setAccepted(closes);
    if (closes) {
        emit Closed();
    }
}

void Screen::mouseMoveEvent(QMouseEvent* event) {
    RestCommands();
    QWidget::mouseMoveEvent(event);
}

void Screen::leaveEvent(QEvent* event) {
    RestCommands();
    QWidget::leaveEvent(event);
}

void Screen::RestCommands(const CommandLabel* except) {
    for (CommandLabel* command : commands_) {
        if (command != except) {
            command->Rest();
        }
    }
}

void Screen::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), QColor(colour::Window));
    painter.setClipRegion(event->region());
    painter.drawPixmap(0, 0, background_.At(devicePixelRatioF()));
    PaintFocusRing(painter);
}

void Screen::PaintFocusRing(QPainter& painter) const {
    const QWidget* focus = focusWidget();
    // Commands and toggles have a ring of their own, and the window none.
    if (focus == nullptr || focus == this || !focus->hasFocus() ||
        qobject_cast<const QAbstractButton*>(focus) != nullptr) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(colour::Focus), 1.6));
    painter.drawRoundedRect(QRectF(focus->geometry()).adjusted(-2, -2, 2, 2), 3, 3);
}

void PlaceOver(QWidget& window, const QWidget& owner, int bottom) {
    const QRect under = owner.geometry();
    QRect place(QPoint(0, 0), window.size());
    place.moveCenter(under.center());
    place.moveBottom(under.top() + bottom);
    // A window is moved by its frame, whose title bar will be as high as the owner's.
    place.translate(0, owner.frameGeometry().top() - under.top());
    if (const QScreen* screen = owner.screen(); screen != nullptr) {
        const QRect room = screen->availableGeometry();
        place.moveLeft(
            std::clamp(place.left(), room.left(), std::max(room.left(), room.right() - place.width())));
        place.moveTop(
            std::clamp(place.top(), room.top(), std::max(room.top(), room.bottom() - place.height())));
    }
    window.move(place.topLeft());
}

}  // namespace vorlund
