// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QObject>
#include <QRect>
#include <QSize>
#include <array>

namespace vorlund {

/// How many pixels of the desktop a pixel of the windows' layouts takes: 1, 1.25, 1.5 or 2, for all windows
/// alike. Sizes, places and pixel sizes of fonts are written down for 1; controls and windows follow a change
/// at once. It is not remembered from one run to the next.
class Zoom : public QObject {
    Q_OBJECT

public:
    static constexpr std::array<qreal, 4> Steps{1.0, 1.25, 1.5, 2.0};

    /// The one of the running application.
    static Zoom& OfApplication();

    qreal Factor() const { return factor_; }

    /// `factor` is one of Steps.
    void Set(qreal factor);

    // The next larger and the next smaller step, where there is one
    void In();
    void Out();

signals:
    void Changed();

private:
    Zoom();
    void Step(int by);

    qreal factor_ = 1.0;
    QFont toolTips_;  // at zoom 1
};

/// The zoom at which a board of `board` pixels starts on a desktop whose work area has `room`: 2 where the
/// room is more than twice the board's in both directions, 1.5 where the window's frame would not fit then,
/// else 1. A desktop that is scaled itself, in its pixels or in its fonts, has chosen already: 1.
qreal StartingZoom(QSize board, QSize room, bool desktopIsScaled);

/// A font of the desktop's, for message boxes and tooltips, at the zoom of the application.
QFont Zoomed(QFont font);

/// A length of the layout in pixels of the desktop.
int Zoomed(int length);
QSize Zoomed(QSize size);

/// Both edges are rounded, so that what touches in the layout touches on the desktop.
QRect Zoomed(const QRect& frame);

}  // namespace vorlund
