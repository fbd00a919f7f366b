# 64-bit ARM.
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(zelTriplet aarch64-linux-gnu)
set(ZEL_DEBIAN_ARCHITECTURE arm64)
include("${CMAKE_CURRENT_LIST_DIR}/common.cmake")
