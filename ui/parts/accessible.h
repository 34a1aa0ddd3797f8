// SPDX-License-Identifier: MIT
#pragma once

namespace vorlund {

/// Makes the screens known to assistive technology for what they are: windows, dialogs and alerts, commands
/// with their keys, pictures. Call it once, before the first screen is opened.
void DescribeScreensToAssistiveTechnology();

}  // namespace vorlund
