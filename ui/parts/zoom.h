// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QObject>
#include <QRect>
#include <QSize>
#include <array>

namespace vorlund {

/// The factor from pixels of the layout to the toolkit's device-independent pixels: 1, 1.25, 1.5 or 2,
/// or at first 0.75, the same for all windows. Geometry and font sizes in the code are for factor 1; widgets
/// listen to Changed. The factor is not saved.
class Zoom : public QObject {
    Q_OBJECT

public:
    static constexpr std::array<qreal, 4> Steps{1.0, 1.25, 1.5, 2.0};

    /// The application's only instance.
    static Zoom& OfApplication();

    qreal Factor() const { return factor_; }

    /// `factor` is one of Steps, or what StartingZoom returns.
    void Set(qreal factor);

    // Step up or down; nothing happens at either end.
    void In();
    void Out();

signals:
    void Changed();

private:
    Zoom();

    qreal factor_ = 1.0;
    QFont toolTips_;  ///< tooltip font at factor 1
};

/// The initial factor for a board of size `board` in a work area of size `room`: 2 if the area is more than
/// twice the board in both directions, but 1.5 if the window frame would not fit then, else 1. Always 1 on a
/// desktop that scales pixels, with `pixelRatio` for each, or fonts itself; but 0.75 if its pixels are so
/// large that the board would not fit, as on a small screen with large text.
qreal StartingZoom(QSize board, QSize room, qreal pixelRatio, bool largeFonts);

/// A font of the platform theme, scaled by the factor; for message boxes and tooltips.
QFont Zoomed(QFont font);

/// A length of the layout, scaled by the factor.
int Zoomed(int length);
QSize Zoomed(QSize size);

/// Rounds the edges, not the size, so that adjacent rectangles stay adjacent.
QRect Zoomed(const QRect& frame);

}  // namespace vorlund
