// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vorlund {

/// The code points of `utf8`; nothing when it is malformed: a truncated or overlong sequence, a surrogate, a
/// value above U+10FFFF.
std::optional<std::u32string> DecodeUtf8(std::string_view utf8);

std::string EncodeUtf8(std::u32string_view characters);

}  // namespace vorlund
