// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>
#include <array>
#include <utility>
#include <vector>

namespace vorlund {

/// A kind of colour vision: the matrix from linear red, green and blue to those perceived.
using ColourVision = std::array<std::array<double, 3>, 3>;

/// Normal vision and the three kinds of colour blindness, by name.
const std::vector<std::pair<const char*, ColourVision>>& ColourVisions();

/// The distance of two colours in CIE Lab as perceived by `vision`.
double LabDistance(QRgb one, QRgb other, const ColourVision& vision);

/// The WCAG contrast of two colours, from 1 to 21.
double Contrast(QRgb one, QRgb other);

}  // namespace vorlund
