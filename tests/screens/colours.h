// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>
#include <array>
#include <utility>
#include <vector>

namespace vorlund {

/// What a kind of eye makes of linear red, green and blue.
using Eye = std::array<std::array<double, 3>, 3>;

/// An eye that sees all colours, and for each kind of cone one without it.
const std::vector<std::pair<const char*, Eye>>& Eyes();

/// How far apart two colours are in CIE Lab to such an eye.
double Apart(QRgb one, QRgb other, const Eye& eye);

/// The contrast of two colours, from 1 to 21.
double Contrast(QRgb one, QRgb other);

}  // namespace vorlund
