// SPDX-License-Identifier: MIT
#include "ui/parts/text_label.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>

#include "ui/parts/announcement.h"

namespace vorlund {
namespace {

// The plate of a count, in pixels of the layout
constexpr int PlateMargin = 1;
constexpr int PlateTop = 1;
constexpr int PlateHeight = 11;

}  // namespace

TextLabel::TextLabel(QWidget* parent, const QString& objectName, Face face, const QRect& frame)
    : Placed(parent), face_(face) {
    setObjectName(objectName);
    PlaceAt(frame);
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setFont(FontOf(face));
    QPalette letters = palette();
    letters.setColor(QPalette::WindowText, ColourOf(face));
    setPalette(letters);
}

void TextLabel::Show(std::string_view text) {
    setText(Displayed(text));
    ZoomChanged();
    if (live_ && isVisible()) {
        Announce(*this, this->text());
    }
}

void TextLabel::Refit(const QRect& frame) {
    PlaceAt(frame);
    ZoomChanged();
}

void TextLabel::ZoomChanged() {
    setFont(wordWrap() ? FontOf(face_) : Fitted(FontOf(face_), text(), contentsRect().width()));
}

void TextLabel::FitAlike(const std::vector<TextLabel*>& labels) {
    int stretch = QFont::Unstretched;
    int pixels = std::numeric_limits<int>::max();
    for (TextLabel* label : labels) {
        label->ZoomChanged();
        const QFont font = label->font();
        stretch = std::min(stretch, font.stretch() == QFont::AnyStretch ? stretch : font.stretch());
        pixels = std::min(pixels, font.pixelSize());
    }
    for (TextLabel* label : labels) {
        QFont font = label->font();
        font.setStretch(stretch);
        font.setPixelSize(pixels);
        label->setFont(font);
    }
}

CountLabel::CountLabel(QWidget* parent, const QString& objectName, const QRect& frame)
    : TextLabel(parent, objectName, Face::Count, frame), room_(frame.width()) {}

void CountLabel::ZoomChanged() {
    setFont(Fitted(FontOf(Face::Count), text(), Zoomed(room_ - 2 * PlateMargin)));
}

QRect CountLabel::Plate() const {
    const int wide = static_cast<int>(std::ceil(QFontMetricsF(font()).horizontalAdvance(text()))) +
                     2 * Zoomed(PlateMargin);
    return {(width() - wide) / 2, Zoomed(PlateTop), wide, Zoomed(PlateHeight)};
}

void CountLabel::paintEvent(QPaintEvent*) {
    const QFontMetricsF metrics(font());
    const QRectF plate(Plate());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(8, 14, 26, 205));
    painter.drawRoundedRect(plate, Zoomed(3), Zoomed(3));
    painter.setFont(font());
    painter.setPen(ColourOf(Face::Count));
    painter.drawText(QPointF(plate.center().x() - metrics.horizontalAdvance(text()) / 2,
                             plate.center().y() + metrics.capHeight() / 2),
                     text());
}

}  // namespace vorlund
