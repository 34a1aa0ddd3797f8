#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>

/// All tests, under the locale that the environment asks for, as the toolkit's application would have set it.
int main(int count, char** arguments) {
    if (std::setlocale(LC_ALL, "") == nullptr && std::getenv("LOCPATH") != nullptr) {
        std::puts("The locale of the environment is not there.");
        return 1;
    }
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
