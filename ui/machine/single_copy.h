// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>

namespace vorlund {

/// Holds the lock file that allows one running copy of the game per user. The lock is released with the
/// object.
class SingleCopy {
public:
    SingleCopy();

    /// True if another copy holds the lock. False also when the lock cannot be created: the game starts then.
    bool OtherIsRunning() const { return otherIsRunning_; }

private:
    QLockFile lock_;
    bool otherIsRunning_ = false;
};

}  // namespace vorlund
