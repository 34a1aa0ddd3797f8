// SPDX-License-Identifier: MIT
#include "ui/parts/scroll_bars.h"

#include <QAbstractScrollArea>
#include <QScrollBar>

#include "ui/parts/zoom.h"

using namespace Qt::StringLiterals;

namespace vorlund {
namespace {

void ApplySheet(QScrollBar& bar) {
    bar.setStyleSheet(
        u"QScrollBar { background: #141c30; width: %1px; margin: 0 }"
        "QScrollBar::handle { background: #7f8fb4; min-height: %2px; border-radius: %3px; margin: %4px }"
        "QScrollBar::handle:hover { background: #b4c0dc }"
        "QScrollBar::add-line, QScrollBar::sub-line { height: 0 }"
        "QScrollBar::add-page, QScrollBar::sub-page { background: none }"_s.arg(Zoomed(12))
            .arg(Zoomed(24))
            .arg(Zoomed(4))
            .arg(Zoomed(2)));
}

}  // namespace

void DressScrollBar(QAbstractScrollArea& area) {
    QScrollBar* bar = area.verticalScrollBar();
    ApplySheet(*bar);
    QObject::connect(&Zoom::OfApplication(), &Zoom::Changed, bar, [bar] { ApplySheet(*bar); });
}

}  // namespace vorlund
