// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPixmap>
#include <QString>
#include <string_view>

namespace vorlund {

/// The faces in which the game writes.
enum class Face { Caption, Status, Heading, Command, Field, Count };

namespace colour {
inline constexpr QRgb Rest = qRgb(0, 0, 192);         ///< a command at rest
inline constexpr QRgb Hover = qRgb(128, 128, 255);    ///< the pointer is over it
inline constexpr QRgb Pressed = qRgb(192, 192, 255);  ///< a mouse button went down on it
inline constexpr QRgb Focus = qRgb(255, 176, 32);     ///< the ring round what has the keyboard
inline constexpr QRgb Caption = qRgb(255, 255, 255);
inline constexpr QRgb Status = qRgb(0, 128, 128);
inline constexpr QRgb Heading = qRgb(0, 255, 0);
inline constexpr QRgb Window = qRgb(0, 0, 0);
}  // namespace colour

/// The font of a face at the zoom of the application. At zoom 1 its size in pixels is that in points at 96
/// dots per inch.
QFont FontOf(Face face);

/// The colour in which labels of this face are written.
QColor ColourOf(Face face);

/// `font`, made narrower and then smaller as far as needed for each line of `text` to fit `width` pixels.
/// Texts are laid out for one family of fonts and are read with whatever fonts a machine has.
QFont Fitted(QFont font, const QString& text, int width);

/// A text of the rules as the screens draw it: their single carriage returns become line ends of the
/// toolkit's.
QString Displayed(std::string_view text);

/// The picture of the program called `name`, sharp at a device pixel ratio of `ratio` and as large as `zoom`
/// asks for.
QPixmap LoadPicture(const QString& name, qreal ratio, qreal zoom);

/// The program's icon, for its windows: also where the program is not installed and the desktop has none.
QIcon ProgramIcon();

}  // namespace vorlund
