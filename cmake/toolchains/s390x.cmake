# SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
# SPDX-License-Identifier: Apache-2.0

# A big-endian machine, to test what depends on the byte order.
set(CMAKE_SYSTEM_PROCESSOR s390x)
set(zelTriplet s390x-linux-gnu)
include("${CMAKE_CURRENT_LIST_DIR}/common.cmake")
