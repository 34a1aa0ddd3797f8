// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vorlund {

// What the program reads, put to the test. Each gives what went wrong; empty when nothing did.

/// Reads `bytes` as a saved game. An accepted one must be sound, come back unchanged when it is saved and
/// loaded again, and play on for some turns; a refused one must have a line and a reason.
std::string WrongWithGame(std::string_view bytes);

/// Compares ReadNumber on `text` with a second reading of its own.
std::string WrongWithNumber(std::string_view text);

}  // namespace vorlund
