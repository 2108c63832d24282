# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT

# The instrument's board, 32-bit ARM with hardware floating point: Debian's cross compiler, the root
# file system that script/sysroot makes, and an emulator for what is run while building and testing.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR armv7l)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH CMAKE_SYSROOT)
string(APPEND CMAKE_SYSROOT "/build/board/sysroot")
if(NOT EXISTS "${CMAKE_SYSROOT}/contents")
    message(FATAL_ERROR "there is no ${CMAKE_SYSROOT}; script/setup --board makes it")
endif()
set(CMAKE_LIBRARY_ARCHITECTURE arm-linux-gnueabihf)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm-static -L "${CMAKE_SYSROOT}")

# This compiler notes wherever its calling convention differs from that of its version 6, by which
# nothing here is compiled.
set(CMAKE_CXX_FLAGS_INIT -Wno-psabi)

# The libraries find each other from where they stand, in whichever folder that is.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
