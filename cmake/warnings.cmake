# SPDX-License-Identifier: MIT
# The compiler warnings. Every library and program links this privately.
add_library(vorlund_warnings INTERFACE)
target_compile_options(vorlund_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast)
# Off by default: a newer compiler has new warnings, which must not stop a build of the game or the package.
if(VORLUND_WERROR)
  target_compile_options(vorlund_warnings INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # With optimisation, gcc 12 warns wrongly (-Wrestrict) where a literal and a std::string are concatenated.
  # clang-tidy reads the same options and does not know that warning.
  target_compile_options(vorlund_warnings INTERFACE -Wno-restrict -Wno-unknown-warning-option)
endif()

# Sanitizer checks for the rules only, because the toolkit's headers fail them.
add_library(vorlund_rules_checks INTERFACE)

if(VORLUND_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    target_compile_options(vorlund_rules_checks INTERFACE -fsanitize=implicit-conversion)
    target_link_options(vorlund_rules_checks INTERFACE -fsanitize=implicit-conversion)
  endif()
endif()
