// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "machine/system_calls.h"

namespace vorlund {

/// The result of writing a file. Errors are errno values, 0 for none.
struct Written {
    int Error = 0;         ///< why the file was not replaced
    int Doubt = 0;         ///< why the new file may not survive a power failure: flushing its folder failed
    std::string Target{};  ///< the path with symbolic links resolved
    std::string LeftBehind{};  ///< the name of the unfinished file, if it could not be removed after an error
    int WhyLeft = 0;           ///< why it could not be removed
};

/// Writes `bytes` as the file `path`, or as the file that a symbolic link there leads to, and makes its
/// folder if need be. At every moment, whatever call fails and whatever other processes write, the file is
/// the complete old or the complete new one.
Written WriteSafely(const SystemCalls& calls, const std::string& path, const std::string& bytes);

}  // namespace vorlund
