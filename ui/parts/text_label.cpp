#include "ui/parts/text_label.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

namespace vorlund {

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
    : TextLabel(parent, objectName, Face::Count, frame) {}

void CountLabel::paintEvent(QPaintEvent*) {
    const QFontMetricsF metrics(font());
    const QPointF start((width() - metrics.horizontalAdvance(text())) / 2,
                        (height() - metrics.height()) / 2 + metrics.ascent());
    QPainterPath letters;
    letters.addText(start, font(), text());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(letters,
                       QPen(QColor(8, 14, 26, 225), 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setFont(font());
    painter.setPen(ColourOf(Face::Count));
    painter.drawText(start, text());
}

}  // namespace vorlund
