// SPDX-License-Identifier: MIT
#include "tests/screens/colours.h"

#include <algorithm>
#include <cmath>

namespace vorlund {
namespace {

using Triple = std::array<double, 3>;

Triple Linear(QRgb colour) {
    const auto part = [](int value) {
        const double share = value / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return {part(qRed(colour)), part(qGreen(colour)), part(qBlue(colour))};
}

Triple Times(const ColourVision& matrix, const Triple& values) {
    Triple product{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t i = 0; i < 3; ++i) {
            product[row] += matrix[row][i] * values[i];
        }
    }
    return product;
}

Triple Lab(QRgb colour, const ColourVision& vision) {
    constexpr ColourVision toXyz{{{0.4124564, 0.3575761, 0.1804375},
                                  {0.2126729, 0.7151522, 0.0721750},
                                  {0.0193339, 0.1191920, 0.9503041}}};
    Triple seen = Times(vision, Linear(colour));
    std::transform(seen.begin(), seen.end(), seen.begin(),
                   [](double part) { return std::clamp(part, 0.0, 1.0); });
    const Triple xyz = Times(toXyz, seen);
    const auto curve = [](double share) {
        return share > 216.0 / 24389 ? std::cbrt(share) : (24389.0 / 27 * share + 16) / 116;
    };
    const double x = curve(xyz[0] / 0.95047);
    const double y = curve(xyz[1]);
    const double z = curve(xyz[2] / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double Luminance(QRgb colour) {
    const Triple part = Linear(colour);
    return 0.2126 * part[0] + 0.7152 * part[1] + 0.0722 * part[2];
}

}  // namespace

const std::vector<std::pair<const char*, ColourVision>>& ColourVisions() {
    // Machado, Oliveira and Fernandes, "A Physiologically-based Model for Simulation of Color Vision
    // Deficiency", 2009, the table for severity 1.0
    static const std::vector<std::pair<const char*, ColourVision>> visions{
        {"normal", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
        {"protan",
         {{{0.152286, 1.052583, -0.204868},
           {0.114503, 0.786281, 0.099216},
           {-0.003882, -0.048116, 1.051998}}}},
        {"deutan",
         {{{0.367322, 0.860646, -0.227968},
           {0.280085, 0.672501, 0.047413},
           {-0.011820, 0.042940, 0.968881}}}},
        {"tritan",
         {{{1.255528, -0.076749, -0.178779},
           {-0.078411, 0.930809, 0.147602},
           {0.004733, 0.691367, 0.303900}}}}};
    return visions;
}

double LabDistance(QRgb one, QRgb other, const ColourVision& vision) {
    const Triple a = Lab(one, vision);
    const Triple b = Lab(other, vision);
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

double Contrast(QRgb one, QRgb other) {
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace vorlund
