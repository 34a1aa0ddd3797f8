// SPDX-License-Identifier: MIT
#pragma once

class QAbstractScrollArea;

namespace vorlund {

/// Gives the area's vertical scroll bar the colours of the game, under every style, and a width that follows
/// the zoom.
void DressScrollBar(QAbstractScrollArea& area);

}  // namespace vorlund
