// SPDX-License-Identifier: MIT
#include "ui/windows/map_tip.h"

#include <QToolTip>
#include <algorithm>

#include "ui/parts/zoom.h"

namespace vorlund {

MapTip::MapTip(QWidget* board) : QLabel(board) {
    setObjectName(QStringLiteral("mapTip"));
    setTextFormat(Qt::PlainText);
    setFrameStyle(QFrame::Box);
    setMargin(2);
    setAutoFillBackground(true);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void MapTip::ShowBeside(QPoint marker, const QString& text) {
    constexpr int above = 24;  // in pixels of the layout from the marker's place: the territory's number
    constexpr int below = 28;  // the marker and the count
    QFont font = QToolTip::font();
    font.setBold(false);  // which it would inherit from the board
    setFont(font);
    setPalette(QToolTip::palette());
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setText(text);
    adjustSize();
    const QSize room = parentWidget()->size() - size();
    const int y = Zoomed(marker.y() + below);
    move(std::clamp(Zoomed(marker.x()), 0, std::max(room.width(), 0)),
         y <= room.height() ? y : Zoomed(marker.y() - above) - height());
    raise();
    show();
}

}  // namespace vorlund
