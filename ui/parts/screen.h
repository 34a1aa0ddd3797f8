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

/// Base class of the game's windows: a fixed size that follows the zoom, a background picture on black,
/// helpers that add labels, fields and commands in pixels of the layout, the hover colours of the commands,
/// and close requests that a window may refuse. The arrow keys move the focus as the Tab key does, where what
/// has it has no use for them.
class Screen : public QWidget {
    Q_OBJECT

public:
    /// `name` becomes the objectName; the background is the picture of that name unless `background` names
    /// another. `owner`, which may be null, is the parent window, in front of which this one stays.
    Screen(QWidget* owner, const QString& name, const QString& title, QSize size,
           const QString& background = {}, Qt::WindowFlags flags = Qt::Window);

    /// Closes the window without calling HandleCloseRequest.
    void CloseOutright();

    /// Centres the window horizontally on `owner` and puts it right below, or as much higher as it takes to
    /// lie within the work area. Repeated when the zoom changes.
    void PlaceBelow(const QWidget& owner);

    /// Centres the window in the work area, or puts it as much higher as it takes to leave room below for a
    /// window `height` pixels of the layout high.
    void PlaceAbove(int height);

    bool ClosesOutright() const { return outright_; }

    /// Shows, raises and activates the window, with its commands in their colour at rest, and behind its
    /// fields in the order of the Tab key. A window without a parent that has not been moved is centred in
    /// the work area.
    void Present();
    int TimesPresented() const { return timesPresented_; }

    /// Sets the window title, escaping "[*]", which the toolkit takes for its modification mark.
    void SetTitle(std::string_view title);

    /// The role reported to assistive technology.
    QAccessible::Role Role() const { return role_; }

signals:
    /// The window has accepted its close event.
    void Closed();

protected:
    void SetRole(QAccessible::Role role) { role_ = role; }

    const Picture& Background() const { return background_; }

    TextLabel* AddText(const QString& name, Face face, const QRect& frame, std::string_view text = {});

    /// Adds a field; `caption` is its accessible name.
    Field* AddField(TextLabel* caption, const QString& name, QPoint position, int maxLength, int width = 33);

    /// Adds `caption` to the labels that share one font size.
    void ShareSize(TextLabel* caption) { captions_.push_back(caption); }

    CommandLabel* AddCommand(const QString& name, const QString& caption, const QRect& box);

    /// From now on, hovering over a command returns the others to their colour at rest.
    void HoverOneAtATime() { hoverOneAtATime_ = true; }

    /// Adds a horizontal separator of `length` pixels that starts at `from`.
    void AddLine(const QString& name, QPoint from, int length);

    /// Called for each close request except CloseOutright, whether it came from a key, a command or the
    /// window manager. Does what closing means and returns true, or returns false to keep the window open.
    virtual bool HandleCloseRequest() { return true; }

    void closeEvent(QCloseEvent* event) final;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    // A window does not show that it has the focus itself; the toolkit would repaint it.
    void focusInEvent(QFocusEvent*) override {}
    void focusOutEvent(QFocusEvent*) override {}

private:
    void FollowZoom();
    void ZoomByKeys();
    void PutCommandsBehindFields();
    void PaintFocusRing(QPainter& painter) const;
    void RestCommands(const CommandLabel* except = nullptr);

    QSize size_;  ///< in pixels of the layout
    QPointer<const QWidget> placedBelow_;
    Picture background_;
    QAccessible::Role role_;
    std::vector<CommandLabel*> commands_;
    std::vector<TextLabel*> captions_;
    bool hoverOneAtATime_ = false;
    bool outright_ = false;
    int timesPresented_ = 0;
};

}  // namespace vorlund
