# SPDX-FileCopyrightText: 2026 QuorvaMedia
# SPDX-License-Identifier: Apache-2.0

# Cross-builds for 64-bit ARM Linux with Debian's cross toolchain and the :arm64 packages
# (dpkg --add-architecture arm64). Qt's code generators (moc, rcc, qmltyperegistrar, lrelease)
# are the build machine's own; programs built here run under qemu through
# CMAKE_CROSSCOMPILING_EMULATOR, so CTest can run the suites.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)

set(CMAKE_FIND_ROOT_PATH /usr/lib/aarch64-linux-gnu /usr/aarch64-linux-gnu)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE BOTH)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
set(ENV{PKG_CONFIG_LIBDIR} /usr/lib/aarch64-linux-gnu/pkgconfig:/usr/share/pkgconfig)

set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)

find_program(QUORVA_QEMU qemu-aarch64-static qemu-aarch64 REQUIRED)
set(CMAKE_CROSSCOMPILING_EMULATOR ${QUORVA_QEMU} -L /usr/aarch64-linux-gnu)
