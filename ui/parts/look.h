// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QPixmap>
#include <QString>
#include <string_view>

namespace vorlund {

/// The text styles of the game.
enum class Face { Caption, Value, Status, Heading, Command, Field, Count, Verdict };

namespace colour {
inline constexpr QRgb Rest = qRgb(0, 0, 192);         ///< command at rest
inline constexpr QRgb Hover = qRgb(128, 128, 255);    ///< command under the pointer
inline constexpr QRgb Pressed = qRgb(192, 192, 255);  ///< command after a mouse press
inline constexpr QRgb Focus = qRgb(255, 176, 32);     ///< ring round the focus widget
inline constexpr QRgb Caption = qRgb(255, 255, 255);
inline constexpr QRgb Status = qRgb(0, 128, 128);
inline constexpr QRgb Heading = qRgb(0, 255, 0);
inline constexpr QRgb Verdict = qRgb(226, 207, 154);  ///< on the game-over picture
inline constexpr QRgb Window = qRgb(0, 0, 0);
}  // namespace colour

/// The font of a style at the application's zoom. Sizes are in pixels, independent of the desktop's font
/// resolution.
QFont FontOf(Face face);

/// The text colour of a style.
QColor ColourOf(Face face);

/// `font`, condensed and then shrunk until each line of `text` fits `width` device-independent pixels or a
/// lower limit is reached. The layout was measured with one font family, and others may be wider.
QFont Fitted(QFont font, const QString& text, int width);

/// A text of the rules for display: UTF-8 is decoded, and carriage returns become line feeds, at which the
/// toolkit breaks lines.
QString Displayed(std::string_view text);

/// The picture resource called `name` at `zoom`, in the resolution of a device pixel ratio of `ratio`. Null
/// if there is none.
QPixmap LoadPicture(const QString& name, qreal ratio, qreal zoom);

/// The window icon, from the resources: the desktop knows one only where the program is installed.
QIcon ProgramIcon();

/// The colours of tooltips.
QPalette ToolTipColours();

}  // namespace vorlund
