// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vorlund {

/// The folder of the user's data, in the bytes of its name: the toolkit knows no name that is not UTF-8.
std::string DataFolder();

}  // namespace vorlund
