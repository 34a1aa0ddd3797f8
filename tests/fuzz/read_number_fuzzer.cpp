#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "tests/fuzz/read_number.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string wrong = vorlund::WrongWithNumber({reinterpret_cast<const char*>(data), size});
    if (!wrong.empty()) {
        std::fprintf(stderr, "%s\n", wrong.c_str());
        std::abort();
    }
    return 0;
}
