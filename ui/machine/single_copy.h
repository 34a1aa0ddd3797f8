// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>

namespace vorlund {

/// Says whether another copy of the game is running for this user. As long as the object lives, this copy is
/// the one.
class SingleCopy {
public:
    SingleCopy();

    /// True only when another copy holds the lock; any other trouble with it lets the game start.
    bool OtherIsRunning() const { return otherIsRunning_; }

private:
    QLockFile lock_;
    bool otherIsRunning_ = false;
};

}  // namespace vorlund
