// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "ui/parts/screen.h"

namespace vorlund {

/// The owner's hold on the one window of a kind, which is empty while none is open.
///
/// A window usually closes from within a handler of its own, so it cannot be destroyed there and then: the
/// owner disables it, for the second half of a double click may still be delivered to it, lets go of it and
/// has it deleted once control is back in the event loop. The next opening makes a new one.
template <class Window>
class OwnedWindow {
public:
    /// Brings the window to the front; `make` makes it if none is open.
    template <class Make>
    void Present(Make make) {
        if (window_ == nullptr) {
            window_ = make();
            QObject::connect(
                window_.get(), &Screen::Closed, window_.get(), [this] { LetGo(); }, Qt::SingleShotConnection);
        }
        window_->Present();
    }

    void Hide() {
        if (window_ != nullptr) {
            window_->hide();
        }
    }

    void CloseOutright() {
        if (window_ != nullptr) {
            window_->CloseOutright();
        }
    }

private:
    void LetGo() {
        window_->setEnabled(false);
        window_.release()->deleteLater();
    }

    std::unique_ptr<Window> window_;
};

}  // namespace vorlund
