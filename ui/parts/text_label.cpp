#include "ui/parts/text_label.h"

#include <QFontMetrics>
#include <QPainter>
#include <cmath>

namespace vorlund {
namespace {

// Of a count's plate, in pixels
constexpr int PlateMargin = 1;
constexpr int PlateTop = 1;
constexpr int PlateHeight = 11;

}  // namespace

TextLabel::TextLabel(QWidget* parent, const QString& objectName, Face face, const QRect& frame)
    : QLabel(parent), face_(face) {
    setObjectName(objectName);
    setGeometry(frame);
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setFont(FontOf(face));
    QPalette letters = palette();
    letters.setColor(QPalette::WindowText, ColourOf(face));
    setPalette(letters);
}

void TextLabel::Show(std::string_view text) {
    const QString shown = Displayed(text);
    if (!wordWrap()) {
        setFont(Fitted(FontOf(face_), shown, width()));
    }
    setText(shown);
}

CountLabel::CountLabel(QWidget* parent, const QString& objectName, const QRect& frame)
    : TextLabel(parent, objectName, Face::Count, frame), room_(frame.width()) {}

void CountLabel::Show(std::string_view text) {
    setFont(Fitted(FontOf(Face::Count), Displayed(text), room_ - 2 * PlateMargin));
    setText(Displayed(text));
}

QRect CountLabel::Plate() const {
    const int wide =
        static_cast<int>(std::ceil(QFontMetricsF(font()).horizontalAdvance(text()))) + 2 * PlateMargin;
    return {(width() - wide) / 2, PlateTop, wide, PlateHeight};
}

void CountLabel::paintEvent(QPaintEvent*) {
    const QFontMetricsF metrics(font());
    const QRectF plate(Plate());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(8, 14, 26, 205));
    painter.drawRoundedRect(plate, 3, 3);
    painter.setFont(font());
    painter.setPen(ColourOf(Face::Count));
    painter.drawText(QPointF(plate.center().x() - metrics.horizontalAdvance(text()) / 2,
                             plate.center().y() + metrics.capHeight() / 2),
                     text());
}

}  // namespace vorlund
