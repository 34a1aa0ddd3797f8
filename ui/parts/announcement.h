// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace vorlund {

/// Has a screen reader, if one listens, say `text`, which belongs to the window of `where`, without moving
/// the focus. Shows nothing.
void Announce(QWidget& where, const QString& text);

}  // namespace vorlund
