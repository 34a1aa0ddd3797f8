#pragma once

#include <string>
#include <string_view>

namespace vorlund {

/// Compares ReadNumber on `text` with a second reading of its own. Gives what went wrong; empty when nothing
/// did.
std::string WrongWithNumber(std::string_view text);

}  // namespace vorlund
