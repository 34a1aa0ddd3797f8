// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vorlund {

/// The texts of the report screen. Lines of the body end with a carriage return.
struct Report {
    std::string Title;
    std::string Headline;
    std::string Body;

    bool operator==(const Report&) const = default;
};

}  // namespace vorlund
