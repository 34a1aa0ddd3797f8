#pragma once

#include <string>
#include <variant>

#include "actions/outcome.h"

namespace vorlund {

/// The message of an action that was refused, to compare with the one expected.
template <typename Outcome>
std::string RefusalOf(const Outcome& outcome) {
    const auto* refusal = std::get_if<Refusal>(&outcome);
    return refusal != nullptr ? refusal->Message : "(not refused)";
}

}  // namespace vorlund
