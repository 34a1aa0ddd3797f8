// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vorlund {

/// The address of the function `name` in the sound module, the shared library at `path`, which is loaded and
/// stays loaded; null if either cannot be had. On Windows the module is a part of the program and `path` is
/// not used.
void* SoundFunction(const std::string& path, const char* name);

}  // namespace vorlund
