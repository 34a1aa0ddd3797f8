// SPDX-License-Identifier: MIT
#include "ui/parts/zoom.h"

#include <QCoreApplication>
#include <QFontInfo>
#include <QPointer>
#include <QToolTip>
#include <algorithm>
#include <cmath>

namespace vorlund {
namespace {

constexpr qreal ReducedZoom = 0.75;

}  // namespace

Zoom& Zoom::OfApplication() {
    static QPointer<Zoom> zoom;
    if (zoom.isNull()) {
        zoom = new Zoom;
        zoom->setParent(QCoreApplication::instance());
    }
    return *zoom;
}

Zoom::Zoom() : toolTips_(QToolTip::font()) {}

void Zoom::Set(qreal factor) {
    if (factor_ != factor) {
        factor_ = factor;
        QToolTip::setFont(Zoomed(toolTips_));
        emit Changed();
    }
}

void Zoom::In() {
    const auto* next = std::upper_bound(Steps.begin(), Steps.end(), factor_);
    Set(next == Steps.end() ? factor_ : *next);
}

void Zoom::Out() {
    const auto* next = std::lower_bound(Steps.begin(), Steps.end(), factor_);
    Set(next == Steps.begin() ? factor_ : *std::prev(next));
}

qreal StartingZoom(QSize board, QSize room, qreal pixelRatio, bool largeFonts) {
    constexpr int frameHeight = 60;  // pixels, an upper bound for title bar and border
    const bool fits = room.width() >= board.width() && room.height() >= board.height() + frameHeight;
    if (!fits && pixelRatio * ReducedZoom >= 1.0) {
        return ReducedZoom;
    }
    if (pixelRatio != 1.0 || largeFonts || room.width() <= 2 * board.width() ||
        room.height() <= 2 * board.height()) {
        return 1.0;
    }
    return room.height() >= 2 * board.height() + frameHeight ? 2.0 : 1.5;
}

QFont Zoomed(QFont font) {
    if (const qreal factor = Zoom::OfApplication().Factor(); factor != 1.0) {
        font.setPointSizeF(QFontInfo(font).pointSizeF() * factor);
    }
    return font;
}

int Zoomed(int length) {
    return static_cast<int>(std::lround(length * Zoom::OfApplication().Factor()));
}

QSize Zoomed(QSize size) {
    return {Zoomed(size.width()), Zoomed(size.height())};
}

QRect Zoomed(const QRect& frame) {
    const QPoint topLeft(Zoomed(frame.left()), Zoomed(frame.top()));
    const QPoint end(Zoomed(frame.left() + frame.width()), Zoomed(frame.top() + frame.height()));
    return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

}  // namespace vorlund
