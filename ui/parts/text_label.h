// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QString>
#include <string_view>

#include "ui/parts/look.h"
#include "ui/parts/placed.h"

namespace vorlund {

/// A piece of text on a screen: a caption, a status line, a heading. It is plain text always, takes no mouse,
/// and makes its letters smaller rather than cut them off.
class TextLabel : public Placed<QLabel> {
public:
    TextLabel(QWidget* parent, const QString& objectName, Face face, const QRect& frame);

    /// Shows a text of the rules; carriage returns end its lines.
    void Show(std::string_view text);

    /// Moves the label to `frame` of the layout and fits its text in again.
    void Refit(const QRect& frame);

protected:
    void ZoomChanged() override;

private:
    Face face_;
};

/// The count of troops and tanks on the map, on a dark plate so that it can be read on every ground.
class CountLabel : public TextLabel {
public:
    CountLabel(QWidget* parent, const QString& objectName, const QRect& frame);

    /// A count wider than `room` pixels of the layout, at first the width of the label, is written narrower
    /// and smaller.
    void SetRoom(int room) { room_ = room; }

    /// Where in the label the count is seen.
    QRect Plate() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void ZoomChanged() override;

private:
    int room_;
};

}  // namespace vorlund
