// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QPointer>
#include <QWidget>
#include <string_view>
#include <vector>

#include "ui/parts/command_label.h"
#include "ui/parts/field.h"
#include "ui/parts/look.h"
#include "ui/parts/picture.h"
#include "ui/parts/text_label.h"

class QPainter;

namespace vorlund {

/// What all windows of the game have in common: a size fixed by the layout and the zoom, a background picture
/// on black, labels, fields and commands at fixed places, the commands' colours under the mouse, and a close
/// request that a window may refuse.
class Screen : public QWidget {
    Q_OBJECT

public:
    /// `name` is the screen's own name; its background is the picture of that name unless `background` names
    /// another. `owner` is the window that it stays in front of, if any.
    Screen(QWidget* owner, const QString& name, const QString& title, QSize size,
           const QString& background = {}, Qt::WindowFlags flags = Qt::Window);

    /// Closes the window without asking what closing it means.
    void CloseOutright();

    /// Moves the window over `owner`, in its middle from left to right and with its lower edge `bottom`
    /// pixels of the layout below the owner's upper one, but onto the desktop in any case. A change of the
    /// zoom does the same again.
    void PlaceOver(const QWidget& owner, int bottom);

    bool ClosesOutright() const { return outright_; }

    /// Shows the window, in front and with the keyboard, its commands at rest. A window without an owner that
    /// has not been moved comes up in the middle of the desktop.
    void Present();
    int TimesPresented() const { return timesPresented_; }

    /// Sets the window's title to a text of the rules, which may hold the toolkit's placeholder "[*]".
    void SetTitle(std::string_view title);

    /// What the window is to a screen reader.
    QAccessible::Role Role() const { return role_; }

signals:
    /// The window closes, for its owner to let go of it.
    void Closed();

protected:
    void SetRole(QAccessible::Role role) { role_ = role; }

    const Picture& Background() const { return background_; }

    TextLabel* AddText(const QString& name, Face face, const QRect& frame, std::string_view text = {});

    /// A text field named, for those who hear the screen, by the text of `caption`.
    Field* AddField(TextLabel* caption, const QString& name, QPoint position, int maxLength, int width = 33);

    CommandLabel* AddCommand(const QString& name, const QString& caption, const QRect& box);

    /// One command of the window is lit at a time: the others rest when the pointer comes to one.
    void LightOneAtATime() { oneAtATime_ = true; }

    /// A thin separator line between the two points.
    void AddLine(const QString& name, QPoint from, int length);

    /// Called on every request to close the window that was not made by CloseOutright, however it came. True
    /// lets the window close.
    virtual bool CloseRequested() { return true; }

    void closeEvent(QCloseEvent* event) final;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void FollowZoom();
    void ZoomByKeys();
    void PaintFocusRing(QPainter& painter) const;
    void RestCommands(const CommandLabel* except = nullptr);

    QSize size_;  // of the layout
    QPointer<const QWidget> over_;
    int bottom_ = 0;
    Picture background_;
    QAccessible::Role role_;
    std::vector<CommandLabel*> commands_;
    bool oneAtATime_ = false;
    bool outright_ = false;
    int timesPresented_ = 0;
};

}  // namespace vorlund
