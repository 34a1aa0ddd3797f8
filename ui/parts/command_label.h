// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "ui/parts/button.h"

namespace vorlund {

/// A clickable text. It is dark blue at rest, light blue under the pointer, and pale blue from a mouse press
/// until the pointer moves. The plate behind it is light, and brighter under the pointer, where a dark
/// outline keeps the contrast of the light text above 4.5:1. A disabled command is grey, has no plate and
/// does not react to the mouse. The Tab key reaches it; a click leaves the focus where it is.
class CommandLabel : public Button {
    Q_OBJECT

public:
    /// By how many pixels of the layout the plate is larger than the text's box on each side.
    static constexpr int PlateX = 5;
    static constexpr int PlateY = 2;

    /// `box` is the rectangle of the text, in pixels of the layout. The letter after "&" in `caption` is
    /// underlined; no accelerator is made for it.
    CommandLabel(QWidget* parent, const QString& objectName, const QString& caption, const QRect& box);

    /// Makes the plate `size` large, in pixels of the layout, with the text in its middle.
    void SetPlate(QSize size);

    /// Enables or disables the command. While it is disabled its tooltip shows `whyNot`, otherwise its key.
    void SetAvailable(bool available, const QString& whyNot);

    /// While the command is disabled, shows the reason beside it and has a screen reader say it.
    void TellWhyNot();

    /// Names the key that runs the command, in the tooltip and for screen readers. The key itself is handled
    /// by the window.
    void SetKey(const QString& key);
    const QString& Key() const { return key_; }

    /// Returns the command to its colour at rest.
    void Rest();

signals:
    /// The pointer has entered the enabled command or moved over it.
    void Hovered();

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
    void SetState(State state);
    QString KeyTip() const;
    void PaintPlate(QPainter& painter) const;
    void PaintMark(QPainter& painter, const QColor& ink) const;
    void PaintText(QPainter& painter, const QRect& box, const QColor& ink) const;

    State state_ = State::Rest;
    QString key_;
};

}  // namespace vorlund
