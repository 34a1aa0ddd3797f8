# SPDX-License-Identifier: MIT
# Builds for 64-bit Windows with MinGW-w64, everything linked statically, and runs the results with Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${VORLUND_WINDOWS_LIBRARIES})  # the second: of packaging/windows/build
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# Wine gets a folder of its own, without the user's settings, and does not ask for the components it could download.
set(CMAKE_CROSSCOMPILING_EMULATOR env WINEPREFIX=${CMAKE_BINARY_DIR}/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= wine)
