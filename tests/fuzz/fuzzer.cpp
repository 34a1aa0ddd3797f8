// SPDX-License-Identifier: MIT
#include <cstdint>
#include <stdexcept>

#include "tests/fuzz/inputs.h"

/// The entry point of libFuzzer, compiled once for each check of inputs.h; VORLUND_CHECK is its name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string wrong = vorlund::VORLUND_CHECK({reinterpret_cast<const char*>(data), size});
    if (!wrong.empty()) {
        throw std::runtime_error(wrong);
    }
    return 0;
}
