// SPDX-License-Identifier: MIT
#include "ui/parts/picture.h"

#include <QPainter>

#include "ui/parts/look.h"

namespace vorlund {

const QPixmap& Picture::At(qreal ratio) const {
    const qreal zoom = Zoom::OfApplication().Factor();
    if (ratio_ != ratio || zoom_ != zoom) {
        pixmap_ = LoadPicture(name_, ratio, zoom);
        ratio_ = ratio;
        zoom_ = zoom;
    }
    return pixmap_;
}

PictureLabel::PictureLabel(QWidget* parent, const QString& objectName, const QRect& frame) : Placed(parent) {
    setObjectName(objectName);
    PlaceAt(frame);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PictureLabel::Show(const Picture* picture) {
    if (picture_ != picture) {
        picture_ = picture;
        setAccessibleName(picture != nullptr ? picture->Description() : QString());
        update();
    }
}

void PictureLabel::paintEvent(QPaintEvent*) {
    if (picture_ != nullptr) {
        QPainter painter(this);
        painter.drawPixmap(0, 0, picture_->At(devicePixelRatioF()));
    }
}

}  // namespace vorlund
