// SPDX-License-Identifier: MIT
#pragma once

namespace vorlund {

/// Installs the factory of the accessibility interfaces, which give screens, buttons and pictures their roles
/// and commands their keys. Call it once, before the first window is made.
void DescribeScreensToAssistiveTechnology();

}  // namespace vorlund
