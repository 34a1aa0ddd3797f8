// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QString>
#include <string_view>
#include <vector>

#include "ui/parts/look.h"
#include "ui/parts/placed.h"

namespace vorlund {

/// A label of one of the text styles. It shows plain text, is transparent for the mouse, and shrinks its font
/// rather than clip the text.
class TextLabel : public Placed<QLabel> {
public:
    TextLabel(QWidget* parent, const QString& objectName, Face face, const QRect& frame);

    /// Shows a text of the rules, whose lines are separated by carriage returns.
    void Show(std::string_view text);

    /// From now on, screen readers say each text that Show shows while the label is visible. (A window's
    /// labels are read out when it opens.)
    void SetLive() { live_ = true; }

    /// Moves the label to `frame`, in pixels of the layout, and fits its font to the new width.
    void Refit(const QRect& frame);

    /// Sets the font of all `labels` to the smallest and narrowest that one of them needs.
    static void FitAlike(const std::vector<TextLabel*>& labels);

protected:
    void ZoomChanged() override;

private:
    Face face_;
    bool live_ = false;
};

/// A territory's count of troops and tanks, on a dark plate that keeps it legible on any map colour.
class CountLabel : public TextLabel {
public:
    CountLabel(QWidget* parent, const QString& objectName, const QRect& frame);

    /// Limits the plate to `room` pixels of the layout by condensing and shrinking the font. The default is
    /// the label's width.
    void SetRoom(int room) { room_ = room; }

    /// The painted plate, in coordinates of the label.
    QRect Plate() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void ZoomChanged() override;

private:
    int room_;
};

}  // namespace vorlund
