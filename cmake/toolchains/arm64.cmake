# SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
# SPDX-License-Identifier: Apache-2.0

# 64-bit ARM.
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(zelTriplet aarch64-linux-gnu)
include("${CMAKE_CURRENT_LIST_DIR}/common.cmake")
