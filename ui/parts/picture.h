// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QPixmap>
#include <QString>

#include "ui/parts/placed.h"

namespace vorlund {

/// A picture resource, decoded when it is first painted and cached until the device pixel ratio or the zoom
/// changes.
class Picture {
public:
    /// `description` is the text for screen readers.
    explicit Picture(QString name, QString description = {})
        : name_(std::move(name)), description_(std::move(description)) {}

    const QString& Description() const { return description_; }

    /// The pixmap at the application's zoom for a device pixel ratio of `ratio`.
    const QPixmap& At(qreal ratio) const;

private:
    QString name_;
    QString description_;
    mutable QPixmap pixmap_;
    mutable qreal ratio_ = 0;
    mutable qreal zoom_ = 0;
};

/// A label that paints a Picture unscaled, clipped to its frame.
class PictureLabel : public Placed<QLabel> {
public:
    PictureLabel(QWidget* parent, const QString& objectName, const QRect& frame);

    /// Shows `picture`, which must outlive the label; null clears it.
    void Show(const Picture* picture);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Picture* picture_ = nullptr;
};

}  // namespace vorlund
