// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "ui/parts/screen.h"

namespace vorlund {

/// Owns the one window of a kind; empty while none is open.
///
/// A window usually closes within one of its own event handlers, where it must not be destroyed. When it
/// closes, it is disabled, because a queued second press may still be delivered to it, and deleted by the
/// event loop (deleteLater). The next Present makes a new window.
template <class Window>
class OwnedWindow {
public:
    /// Presents the open window, or the one that `make` returns if none is open.
    template <class Make>
    void Present(Make make) {
        if (window_ == nullptr) {
            window_ = make();
            QObject::connect(
                window_.get(), &Screen::Closed, window_.get(), [this] { Release(); },
                Qt::SingleShotConnection);
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
    void Release() {
        window_->setEnabled(false);
        window_.release()->deleteLater();
    }

    std::unique_ptr<Window> window_;
};

}  // namespace vorlund
