// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vorlund {

/// The characters of `utf8`; nothing when it is not UTF-8 (cut off, overlong, a surrogate, beyond U+10FFFF).
std::optional<std::u32string> DecodeUtf8(std::string_view utf8);

std::string EncodeUtf8(std::u32string_view characters);

}  // namespace vorlund
