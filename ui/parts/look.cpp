// SPDX-License-Identifier: MIT
#include "ui/parts/look.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QStringList>
#include <algorithm>

#include "ui/parts/zoom.h"

namespace vorlund {
namespace {

QFont Make(const QStringList& families, int pixels, bool bold = false, bool italic = false) {
    QFont font;
    font.setFamilies(families);
    font.setPixelSize(Zoomed(pixels));
    font.setBold(bold);
    font.setItalic(italic);
    return font;
}

int WidestLine(const QFont& font, const QString& text) {
    const QFontMetrics metrics(font);
    int widest = 0;
    for (const QString& line : text.split(u'\n')) {
        widest = std::max(widest, metrics.size(Qt::TextSingleLine, line).width());
    }
    return widest;
}

}  // namespace

QFont FontOf(Face face) {
    const QStringList sans{QStringLiteral("Arial"), QStringLiteral("Liberation Sans")};
    const QStringList serif{QStringLiteral("Times New Roman"), QStringLiteral("Liberation Serif")};
    const QStringList field{QStringLiteral("MS Sans Serif"), QStringLiteral("Liberation Sans")};
    switch (face) {
        case Face::Status:
            return Make(sans, 12, true);
        case Face::Heading:
            return Make(serif, 13, true);
        case Face::Command: {
            QFont font = Make(sans, 17, true, true);
            font.setStyleStrategy(QFont::NoFontMerging);  // plain letters: none is looked for in other fonts
            return font;
        }
        case Face::Field:
            return Make(field, 11, true);
        case Face::Count:
            return Make(sans, 9);
        case Face::Caption:
            break;
    }
    return Make(sans, 11);
}

QColor ColourOf(Face face) {
    switch (face) {
        case Face::Status:
            return colour::Status;
        case Face::Heading:
            return colour::Heading;
        case Face::Command:
            return colour::Rest;
        case Face::Field:
            return Qt::black;
        case Face::Caption:
        case Face::Count:
            break;
    }
    return colour::Caption;
}

QFont Fitted(QFont font, const QString& text, int width) {
    constexpr int narrowest =
        88;                  // per cent; letters narrower than this are harder to read than smaller ones
    constexpr int step = 4;  // per cent
    const int smallest = Zoomed(7);  // pixels
    const int widest = WidestLine(font, text);
    if (widest <= width || widest == 0) {
        return font;
    }
    // Every font that is tried is loaded: the first try is the stretch that the widths call for.
    int stretch = std::clamp(100 * width / widest / step * step, narrowest, 100 - step);
    font.setStretch(stretch);
    while (WidestLine(font, text) > width && stretch > narrowest) {
        stretch -= step;
        font.setStretch(stretch);
    }
    while (WidestLine(font, text) > width && font.pixelSize() > smallest) {
        font.setPixelSize(font.pixelSize() - 1);
    }
    return font;
}

QString Displayed(std::string_view text) {
    QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return shown.replace(u'\r', u'\n');
}

QPixmap LoadPicture(const QString& name, qreal ratio, qreal zoom) {
    const QString stem = QStringLiteral(":/pictures/") + name;
    const qreal pixels = ratio * zoom;  // of the device, for one of the layout
    if (pixels == 1.0) {
        return {stem + QStringLiteral(".png")};
    }
    QPixmap picture(stem + QStringLiteral("@2x.png"));
    if (picture.isNull()) {
        return picture;  // a screen without a background, such as the title's
    }
    // In between two scales the finer picture is brought to the device's own pixels once, not at every paint.
    picture.setDevicePixelRatio(1.0);
    if (pixels != 2.0) {
        const QSizeF size = QSizeF(picture.size()) * pixels / 2.0;
        picture = picture.scaled(size.toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    picture.setDevicePixelRatio(ratio);
    return picture;
}

QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        icon.addFile(QStringLiteral(":/icons/vorlund-%1.png").arg(size), QSize(size, size));
    }
    return icon;
}

}  // namespace vorlund
