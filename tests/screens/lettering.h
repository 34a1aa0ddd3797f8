#pragma once

#include <QImage>
#include <QWidget>

namespace vorlund {

/// What a widget looks like where it stands, with and without its letters.
struct Lettering {
    QImage With;
    QImage Without;

    bool IsInk(int x, int y) const { return With.pixel(x, y) != Without.pixel(x, y); }
    QRect Ink() const;

    /// How many pixels of the letters have exactly this colour.
    int Count(QRgb colour) const;

    /// The contrast of `colour` with the worst pixel right behind the letters, their faint fringe left out.
    double Contrast(QRgb colour) const;
};

/// The widget and what lies behind it, as they stand in their window.
QImage Seen(QWidget& widget);

Lettering LetteringOf(QWidget& widget);

}  // namespace vorlund
