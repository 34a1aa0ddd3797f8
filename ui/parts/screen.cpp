// SPDX-License-Identifier: MIT
#include "ui/parts/screen.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <algorithm>

#include "ui/parts/keys.h"
#include "ui/parts/placement.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

constexpr int FieldHeight = 19;
constexpr int FocusRing = 3;  ///< the ring's reach beyond the control, in pixels of the layout

Qt::WindowFlags WithFrame(Qt::WindowFlags flags) {
    if (flags.testFlag(Qt::FramelessWindowHint)) {
        return flags;
    }
    flags |=
        Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    // No minimise button on dialogs: while a report or dialog is minimised, the board has no command that
    // brings it back.
    const bool dialog = (flags & Qt::WindowType_Mask) == Qt::Dialog;
    return dialog ? flags : flags | Qt::WindowMinimizeButtonHint;
}

QRect WorkArea(const QWidget& window) {
    return window.screen() != nullptr ? window.screen()->availableGeometry() : QRect();
}

}  // namespace

Screen::Screen(QWidget* owner, const QString& name, const QString& title, QSize size,
               const QString& background, Qt::WindowFlags flags)
    : QWidget(owner, WithFrame(flags)),
      size_(size),
      background_(background.isEmpty() ? name : background),
      role_(windowType() == Qt::Dialog ? QAccessible::Dialog : QAccessible::Window) {
    setObjectName(name);
    setWindowTitle(title);
    setMouseTracking(true);
    QPalette black = palette();
    black.setColor(QPalette::Window, colour::Window);
    // With equal colours in both groups the toolkit does not repaint the window when it is (de)activated.
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        const auto colour = static_cast<QPalette::ColorRole>(role);
        black.setBrush(QPalette::Inactive, colour, black.brush(QPalette::Active, colour));
    }
    setPalette(black);
    FollowZoom();
    ZoomByKeys();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* before, QWidget* now) {
        for (const QWidget* changed : {before, now}) {
            if (changed != nullptr && changed->parentWidget() == this) {
                const int ring = Zoomed(FocusRing);
                update(changed->geometry().adjusted(-ring, -ring, ring, ring));
            }
        }
    });
}

void Screen::FollowZoom() {
    setFixedSize(Zoomed(size_));
    setFont(FontOf(Face::Field));  // inherited by fields and lists; labels set their own
}

void Screen::ZoomByKeys() {
    Zoom& zoom = Zoom::OfApplication();
    connect(&zoom, &Zoom::Changed, this, [this] {
        QRect frame = frameGeometry();
        const QPoint middle = frame.center();
        const QSize border = frame.size() - size();
        FollowZoom();
        frame.setSize(size() + border);
        frame.moveCenter(middle);
        move(IntoRoom(frame, WorkArea(*this)));
        // Queued, because the other window may handle this change of the zoom later
        QTimer::singleShot(0, this, [this] {
            if (!placedBelow_.isNull()) {
                PlaceBelow(*placedBelow_);
            }
        });
    });
    const auto addShortcut = [this](const QKeySequence& keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    for (const Qt::Key plus : {Qt::Key_Plus, Qt::Key_Equal}) {
        addShortcut(Qt::CTRL | plus, [&zoom] { zoom.In(); });
    }
    addShortcut(Qt::CTRL | Qt::Key_Minus, [&zoom] { zoom.Out(); });
    addShortcut(Qt::CTRL | Qt::Key_0, [&zoom] { zoom.Set(1.0); });
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
    if (++timesPresented_ == 1) {
        PutCommandsBehindFields();
        TextLabel::FitAlike(captions_);
        // Connected after the labels, so called when each has been fitted to the new zoom
        connect(&Zoom::OfApplication(), &Zoom::Changed, this, [this] { TextLabel::FitAlike(captions_); });
    }
    RestCommands();
    show();
    raise();
    activateWindow();
}

void Screen::PutCommandsBehindFields() {
    const auto isField = [&](QWidget* widget) {
        return (widget->focusPolicy() & Qt::ClickFocus) != 0 &&
               std::find(commands_.begin(), commands_.end(), widget) == commands_.end();
    };
    QWidget* last = this;
    for (QWidget* widget = nextInFocusChain(); widget != this; widget = widget->nextInFocusChain()) {
        last = isField(widget) ? widget : last;
    }
    for (CommandLabel* command : commands_) {
        setTabOrder(last, command);
        last = command;
    }
}

void Screen::SetTitle(std::string_view title) {
    setWindowTitle(Displayed(title).replace(u"[*]"_s, u"[*][*]"_s));
}

TextLabel* Screen::AddText(const QString& name, Face face, const QRect& frame, std::string_view text) {
    auto* label = new TextLabel(this, name, face, frame);
    label->Show(text);
    return label;
}

Field* Screen::AddField(TextLabel* caption, const QString& name, QPoint position, int maxLength, int width) {
    auto* field = new Field(this, name, QRect(position, QSize(width, FieldHeight)), maxLength);
    caption->setBuddy(field);
    ShareSize(caption);
    return field;
}

CommandLabel* Screen::AddCommand(const QString& name, const QString& caption, const QRect& box) {
    auto* command = new CommandLabel(this, name, caption, box);
    commands_.push_back(command);
    connect(command, &CommandLabel::Hovered, this, [this, command] {
        if (hoverOneAtATime_) {
            RestCommands(command);
        }
    });
    return command;
}

void Screen::AddLine(const QString& name, QPoint from, int length) {
    auto* line = new Placed<QWidget>(this);
    line->setObjectName(name);
    line->PlaceAt(QRect(from, QSize(length, 1)));
    QPalette ink = line->palette();
    ink.setColor(QPalette::Window, QColor(96, 112, 140));
    line->setPalette(ink);
    line->setAutoFillBackground(true);
    line->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Screen::closeEvent(QCloseEvent* event) {
    // A hidden window has been closed before; until it is deleted it may receive another close event.
    const bool closes = outright_ || !isVisible() || HandleCloseRequest();
    event->setAccepted(closes);
    if (closes) {
        emit Closed();
    }
}

void Screen::keyPressEvent(QKeyEvent* event) {
    if (IsArrow(event->key()) && IsPlain(*event) && qobject_cast<QLineEdit*>(focusWidget()) == nullptr) {
        focusNextPrevChild(event->key() == Qt::Key_Right || event->key() == Qt::Key_Down);
    } else {
        QWidget::keyPressEvent(event);
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
    if (focus == nullptr || focus == this || !focus->hasFocus()) {
        return;  // the window itself has no ring
    }
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal zoom = Zoom::OfApplication().Factor();
    painter.setPen(QPen(QColor(colour::Focus), 1.6 * zoom));
    painter.drawRoundedRect(QRectF(focus->geometry()).adjusted(-2 * zoom, -2 * zoom, 2 * zoom, 2 * zoom),
                            3 * zoom, 3 * zoom);
}

void Screen::PlaceBelow(const QWidget& owner) {
    placedBelow_ = &owner;
    // This window's frame is not known before it is shown; assume one like the owner's.
    const QSize frame = owner.frameGeometry().size() - owner.size();
    move(vorlund::PlaceBelow(owner.frameGeometry(), size() + frame, WorkArea(owner)));
}

void Screen::PlaceAbove(int height) {
    constexpr int titleBar = 36;  // pixels; not known either
    move(vorlund::PlaceAbove(Zoomed(height) + titleBar, size() + QSize(0, titleBar), WorkArea(*this)));
}

}  // namespace vorlund
