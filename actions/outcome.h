// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vorlund {

/// The action was refused and nothing has changed; `Message` says why.
struct Refusal {
    std::string Message;

    bool operator==(const Refusal&) const = default;
};

/// The action's command is not available: the dialog beeps, and nothing has changed.
struct Beep {
    bool operator==(const Beep&) const = default;
};

/// Nothing has changed, and no message is shown.
struct Nothing {
    bool operator==(const Nothing&) const = default;
};

}  // namespace vorlund
