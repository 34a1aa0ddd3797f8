// SPDX-License-Identifier: MIT
#include "ui/parts/placement.h"

#include <algorithm>

namespace vorlund {

QPoint IntoRoom(QRect window, const QRect& room) {
    if (!room.isEmpty()) {
        window.moveRight(std::min(window.right(), room.right()));
        window.moveBottom(std::min(window.bottom(), room.bottom()));
        window.moveLeft(std::max(window.left(), room.left()));
        window.moveTop(std::max(window.top(), room.top()));
    }
    return window.topLeft();
}

QPoint PlaceBelow(const QRect& above, QSize size, const QRect& room) {
    QRect window(QPoint(), size);
    window.moveCenter(above.center());
    window.moveTop(above.bottom() + 1);
    return IntoRoom(window, room);
}

QPoint PlaceAbove(int below, QSize size, const QRect& room) {
    QRect window(QPoint(), size);
    window.moveCenter(room.center());
    window.moveBottom(std::min(window.bottom(), room.bottom() - below));
    return IntoRoom(window, room);
}

}  // namespace vorlund
