#pragma once

#include <string>
#include <string_view>

namespace vorlund {

/// Reads `bytes` as a saved game. An accepted one must be sound, come back unchanged when it is saved and
/// loaded again, and stay so over three ends of turn. Gives what went wrong; empty when nothing did.
std::string WrongWithGame(std::string_view bytes);

}  // namespace vorlund
