// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vorlund {

// The code page of saved games. Its five undefined bytes are mapped to the control characters of the same
// value, so that every byte survives reading and writing.

/// `utf8` in Windows-1252; nothing when it contains a character outside the code page or is malformed.
std::optional<std::string> ToWindows1252(std::string_view utf8);

/// Windows-1252 `bytes` in UTF-8.
std::string FromWindows1252(std::string_view bytes);

}  // namespace vorlund
