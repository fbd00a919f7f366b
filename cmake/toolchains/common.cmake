# SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
# SPDX-License-Identifier: Apache-2.0

# The common part of the toolchains. CMAKE_SYSROOT names a directory with the packages of the target; scripts/build-for creates one.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_CXX_COMPILER ${zelTriplet}-g++)
set(CMAKE_LIBRARY_ARCHITECTURE ${zelTriplet})

# Programs come from this machine, everything else from the target's packages.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_SYSROOT_DIR} "${CMAKE_SYSROOT}")
set(ENV{PKG_CONFIG_LIBDIR} "${CMAKE_SYSROOT}/usr/lib/${zelTriplet}/pkgconfig:${CMAKE_SYSROOT}/usr/share/pkgconfig")
