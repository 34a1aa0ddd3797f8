// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vorlund {

// The code page of saved games. Its five undefined bytes stand for the control characters of the same
// number, so that every byte means one character and reads back.

/// `utf8` in Windows-1252; nothing when it holds a character outside the code page or is not UTF-8.
std::optional<std::string> ToWindows1252(std::string_view utf8);

/// Windows-1252 `bytes` in UTF-8.
std::string FromWindows1252(std::string_view bytes);

}  // namespace vorlund
