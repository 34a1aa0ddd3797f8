// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vorlund {

/// The action was not carried out and nothing has changed; `Message` says why.
struct Refusal {
    std::string Message;

    bool operator==(const Refusal&) const = default;
};

/// The action's command is not available: the computer beeps, and nothing has changed.
struct Beep {
    bool operator==(const Beep&) const = default;
};

/// Nothing happened, and nothing is said of it.
struct Nothing {
    bool operator==(const Nothing&) const = default;
};

}  // namespace vorlund
