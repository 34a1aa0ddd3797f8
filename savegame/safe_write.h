// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "savegame/system_calls.h"

namespace vorlund {

/// How writing a file has ended. The errors are the system's numbers, 0 for none.
struct Written {
    int Error = 0;             ///< why the file is what it was before
    int Doubt = 0;             ///< the file is the new one, but this may keep it from outlasting a power cut
    std::string Target{};      ///< the path of the file itself, behind all links
    std::string LeftBehind{};  ///< the name of the unfinished file, when an error keeps it there
    int WhyLeft = 0;           ///< and that error
};

/// Writes `bytes` as the file `path`, making its folder if need be; where `path` is a link, as the file
/// behind it. At every moment, whatever fails and whoever writes beside, that is the old file or the new
/// one, whole.
Written WriteSafely(const SystemCalls& calls, const std::string& path, const std::string& bytes);

}  // namespace vorlund
