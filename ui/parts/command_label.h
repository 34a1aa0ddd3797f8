// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "ui/parts/button.h"

namespace vorlund {

/// A command of a screen: a text that is clicked. Dark blue at rest, light blue under the pointer, pale blue
/// once a mouse button has gone down on it, until the pointer moves. Behind the letters lies a plate that
/// turns from light to dark with them, so that they can be read in each state whatever the screen shows. A
/// disabled command is greyed and takes no notice of the mouse.
class CommandLabel : public Button {
    Q_OBJECT

public:
    /// How far the plate reaches beyond the text's box, to either side and above and below, in pixels.
    static constexpr int PlateX = 5;
    static constexpr int PlateY = 2;

    /// `box` is the place of the text. In `caption` a letter behind "&" is the access letter and is
    /// underlined; it is no accelerator.
    CommandLabel(QWidget* parent, const QString& objectName, const QString& caption, const QRect& box);

    /// Enables the command, or disables it for the reason that its tooltip then gives.
    void SetAvailable(bool available, const QString& whyNot);

    /// Tells which key runs the command: in its tooltip, and to those who hear the screen.
    void SetKey(const QString& key);
    const QString& Key() const { return key_; }

    /// Puts the command back to its colour at rest.
    void Rest();

signals:
    /// The pointer has come to, or moved over, this enabled command.
    void Lit();

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void ZoomChanged() override { FitCaption(); }

private:
    enum class State { Rest, Hover, Pressed };

    void FitCaption();
    void Become(State state);
    QString KeyTip() const;
    void PaintPlate(QPainter& painter) const;
    void PaintMark(QPainter& painter, const QColor& ink) const;

    State state_ = State::Rest;
    QString key_;
};

}  // namespace vorlund
