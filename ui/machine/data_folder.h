// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vorlund {

/// The user's data folder, $XDG_DATA_HOME or ~/.local/share, as the bytes of its path. Not a QString, which
/// cannot represent a path that is not UTF-8.
std::string DataFolder();

}  // namespace vorlund
