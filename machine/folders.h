// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vorlund {

// The user's folders, as the bytes of their paths, not as a QString, which cannot represent a path that is
// not UTF-8. On Windows they are UTF-8, with slashes.

/// Where programs keep the user's data: $XDG_DATA_HOME or ~/.local/share; on Windows the local AppData.
std::string DataFolder();

/// Where programs keep their sockets and locks while the user is logged in: $XDG_RUNTIME_DIR. Empty if there
/// is none, as on Windows; the folder it names need not exist.
std::string RuntimeFolder();

}  // namespace vorlund
