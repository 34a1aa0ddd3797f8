// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include "ui/parts/zoom.h"

namespace vorlund {

/// A control, a `Base` of the toolkit, that has a frame in its window's layout and stands where the zoom puts
/// it.
template <class Base>
class Placed : public Base {
public:
    explicit Placed(QWidget* parent) : Base(parent) {
        QObject::connect(&Zoom::OfApplication(), &Zoom::Changed, this, [this] {
            this->setGeometry(Zoomed(frame_));
            ZoomChanged();
        });
    }

    /// Moves the control to `frame`, in pixels of the layout.
    void PlaceAt(const QRect& frame) {
        frame_ = frame;
        this->setGeometry(Zoomed(frame_));
    }

    const QRect& Frame() const { return frame_; }

protected:
    /// The control has its new size: fonts follow here.
    virtual void ZoomChanged() {}

private:
    QRect frame_;
};

}  // namespace vorlund
