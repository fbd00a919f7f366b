# SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
# SPDX-License-Identifier: Apache-2.0

# 32-bit ARM with hardware floating point, and files of any size.
set(CMAKE_SYSTEM_PROCESSOR armv7l)
set(zelTriplet arm-linux-gnueabihf)
include("${CMAKE_CURRENT_LIST_DIR}/common.cmake")
