// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QPixmap>
#include <QString>

#include "ui/parts/placed.h"

namespace vorlund {

/// A picture of the program that is decoded once, when it is first painted, and again only if the device
/// pixel ratio or the zoom changes.
class Picture {
public:
    /// `description` says what is seen, to those who do not see it.
    explicit Picture(QString name, QString description = {})
        : name_(std::move(name)), description_(std::move(description)) {}

    const QString& Description() const { return description_; }

    /// The picture at the zoom of the application, for a device pixel ratio of `ratio`.
    const QPixmap& At(qreal ratio) const;

private:
    QString name_;
    QString description_;
    mutable QPixmap pixmap_;
    mutable qreal ratio_ = 0;
    mutable qreal zoom_ = 0;
};

/// A place on a screen that shows a picture unscaled, cut to its frame.
class PictureLabel : public Placed<QLabel> {
public:
    PictureLabel(QWidget* parent, const QString& objectName, const QRect& frame);

    /// `picture` must outlive the label, or null shows nothing.
    void Show(const Picture* picture);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Picture* picture_ = nullptr;
};

}  // namespace vorlund
