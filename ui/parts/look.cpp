// SPDX-License-Identifier: MIT
#include "ui/parts/look.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QStringList>
#include <algorithm>

#include "ui/parts/zoom.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

QFont MakeFont(const QStringList& families, int pixels, bool bold = false, bool italic = false) {
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
    const QStringList sans{u"Arial"_s, u"Liberation Sans"_s};
    const QStringList serif{u"Times New Roman"_s, u"Liberation Serif"_s};
    const QStringList field{u"MS Sans Serif"_s, u"Liberation Sans"_s};
    switch (face) {
        case Face::Value:
            return MakeFont(sans, 11, true);
        case Face::Status:
            return MakeFont(sans, 12, true);
        case Face::Heading:
            return MakeFont(serif, 13, true);
        case Face::Command: {
            QFont font = MakeFont(sans, 17, true, true);
            // Captions are ASCII: searching the fallback fonts would only cost start-up time.
            font.setStyleStrategy(QFont::NoFontMerging);
            return font;
        }
        case Face::Field:
            return MakeFont(field, 11, true);
        case Face::Count:
            return MakeFont(sans, 9);
        case Face::Verdict:
            return MakeFont(serif, 22, true);
        case Face::Caption:
            break;
    }
    return MakeFont(sans, 11);
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
        case Face::Verdict:
            return colour::Verdict;
        case Face::Caption:
        case Face::Value:
        case Face::Count:
            break;
    }
    return colour::Caption;
}

QFont Fitted(QFont font, const QString& text, int width) {
    // In per cent: below 88, a smaller font reads better than a narrower one.
    constexpr int narrowest = 88;
    constexpr int step = 4;
    const int smallest = Zoomed(7);  // pixels
    const int widest = WidestLine(font, text);
    if (widest <= width || widest == 0) {
        return font;
    }
    // Each stretch that is tried loads a font, so start with the one that the ratio of the widths suggests.
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
    const QString stem = u":/pictures/"_s + name;
    const qreal scale = ratio * zoom;  // device pixels per pixel of the layout
    if (scale == 1.0) {
        return {stem + u".png"_s};
    }
    QPixmap picture(stem + u"@2x.png"_s);
    if (picture.isNull()) {
        return picture;  // the title screen has no background
    }
    // Scale the finer picture to device pixels here, once, rather than in each paint event.
    picture.setDevicePixelRatio(1.0);
    if (scale != 2.0) {
        const QSizeF size = QSizeF(picture.size()) * scale / 2.0;
        picture = picture.scaled(size.toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    picture.setDevicePixelRatio(ratio);
    return picture;
}

QPalette ToolTipColours() {
    QPalette colours;
    colours.setColor(QPalette::ToolTipBase, QColor(20, 28, 48));
    colours.setColor(QPalette::ToolTipText, QColor(colour::Caption));
    return colours;
}

QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        icon.addFile(u":/icons/vorlund-%1.png"_s.arg(size), QSize(size, size));
    }
    return icon;
}

}  // namespace vorlund
