# SPDX-License-Identifier: MIT
# The one place that says how strictly the code is compiled. Libraries and programs link it privately.
add_library(vorlund_warnings INTERFACE)
target_compile_options(vorlund_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast)
# Only the checks stop at a warning: a compiler of tomorrow knows more of them.
if(VORLUND_WERROR)
  target_compile_options(vorlund_warnings INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # Optimising, gcc 12 takes joining a literal and a std::string for a copy onto itself.
  # clang-tidy, which reads the same options, knows no such warning.
  target_compile_options(vorlund_warnings INTERFACE -Wno-restrict -Wno-unknown-warning-option)
endif()

# Checks that only the rules bear: a 16-bit wrap in a toolkit header is not ours to mend.
add_library(vorlund_rules_checks INTERFACE)

if(VORLUND_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    target_compile_options(vorlund_rules_checks INTERFACE -fsanitize=implicit-conversion)
    target_link_options(vorlund_rules_checks INTERFACE -fsanitize=implicit-conversion)
  endif()
endif()
