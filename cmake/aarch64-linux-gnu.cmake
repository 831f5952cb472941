# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
# Toolchain: builds for Linux on 64-bit ARM on Debian, with the package g++-aarch64-linux-gnu. Programs run in the emulator
# of qemu-user where it is installed.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_FIND_ROOT_PATH /usr/aarch64-linux-gnu)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
find_program(ceiechart_qemu qemu-aarch64)
if(ceiechart_qemu)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${ceiechart_qemu} -L /usr/aarch64-linux-gnu)
endif()
