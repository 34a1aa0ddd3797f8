#include "tests/screens/lettering.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "ui/command_label.h"

namespace vorlund {
namespace {

double Luminance(QRgb colour) {
    const auto part = [](int value) {
        const double share = value / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(qRed(colour)) + 0.7152 * part(qGreen(colour)) + 0.0722 * part(qBlue(colour));
}

double Ratio(QRgb one, QRgb other) {
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace

QRect Lettering::Ink() const {
    QRect ink;
    for (int y = 0; y < With.height(); ++y) {
        for (int x = 0; x < With.width(); ++x) {
            if (IsInk(x, y)) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

int Lettering::Count(QRgb colour) const {
    int count = 0;
    for (int i = 0; i < With.width() * With.height(); ++i) {
        const QPoint p(i % With.width(), i / With.width());
        count += With.pixel(p) == colour && IsInk(p.x(), p.y()) ? 1 : 0;
    }
    return count;
}

double Lettering::Contrast(QRgb colour) const {
    const auto distance = [](QRgb one, QRgb other) {
        return std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
               std::abs(qBlue(one) - qBlue(other));
    };
    double worst = 21;
    for (int i = 0; i < With.width() * With.height(); ++i) {
        const QPoint p(i % With.width(), i / With.width());
        const QRgb behind = Without.pixel(p);
        if (IsInk(p.x(), p.y()) && 4 * distance(With.pixel(p), behind) >= distance(colour, behind)) {
            worst = std::min(worst, Ratio(colour, behind));
        }
    }
    return worst;
}

QImage Seen(QWidget& widget) {
    return widget.window()->grab(QRect(widget.mapTo(widget.window(), QPoint()), widget.size())).toImage();
}

Lettering LetteringOf(QWidget& widget) {
    Lettering letters{Seen(widget), {}};
    if (auto* command = qobject_cast<CommandLabel*>(&widget)) {
        const QString text = command->text();
        command->setText({});
        letters.Without = Seen(widget);
        command->setText(text);
    } else {
        widget.setVisible(false);
        letters.Without = Seen(widget);
        widget.setVisible(true);
    }
    return letters;
}

}  // namespace vorlund
