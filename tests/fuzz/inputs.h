// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vorlund {

// Checks of the readers on any input. Each returns what is wrong, or an empty text.

/// Reads `bytes` as a saved game. If it is accepted, it must be consistent, be the same after saving and
/// loading, and stay consistent for some turns; a refusal must have a line and a reason.
std::string WrongWithGame(std::string_view bytes);

/// Compares ReadNumber on `text` with a regular expression and strtod.
std::string WrongWithNumber(std::string_view text);

}  // namespace vorlund
