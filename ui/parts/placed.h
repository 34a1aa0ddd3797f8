// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include "ui/parts/zoom.h"

namespace vorlund {

/// A `Base` widget whose geometry is given in pixels of the layout and follows the zoom.
template <class Base>
class Placed : public Base {
public:
    explicit Placed(QWidget* parent) : Base(parent) {
        QObject::connect(&Zoom::OfApplication(), &Zoom::Changed, this, [this] {
            this->setGeometry(Zoomed(frame_));
            ZoomChanged();
        });
    }

    /// Sets the geometry to `frame`, in pixels of the layout.
    void PlaceAt(const QRect& frame) {
        frame_ = frame;
        this->setGeometry(Zoomed(frame_));
    }

    const QRect& Frame() const { return frame_; }

protected:
    /// Called after a change of the zoom has resized the control; overridden to adjust fonts.
    virtual void ZoomChanged() {}

private:
    QRect frame_;
};

}  // namespace vorlund
