# SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
# SPDX-License-Identifier: Apache-2.0

# Compiler options and output directories of all targets.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)

set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")

# Programs and libraries find each other by relative paths, in the build tree and in an installed tree that was moved.
# A path that CMake replaces on installation would have empty entries, which the loader reads as the current directory.
file(RELATIVE_PATH libraryFromProgram "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
set(CMAKE_INSTALL_RPATH "$ORIGIN" "$ORIGIN/${libraryFromProgram}" "$ORIGIN/../lib")
list(REMOVE_DUPLICATES CMAKE_INSTALL_RPATH)
set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # Otherwise stat() fails for large inode numbers, and times end in 2038.
    add_compile_definitions(_FILE_OFFSET_BITS=64 _TIME_BITS=64)
endif()

add_library(zel_warnings INTERFACE)
target_compile_options(zel_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(CMAKE_UNITY_BUILD)
    # In a unity build, -Wshadow also compares names of separate source files.
    target_compile_options(zel_warnings INTERFACE -Wno-shadow)
endif()
if(ZEL_WERROR)
    target_compile_options(zel_warnings INTERFACE -Werror)
endif()

add_library(zel_build_options INTERFACE)
target_compile_definitions(zel_build_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
target_link_libraries(zel_build_options INTERFACE zel_warnings)

if(ZEL_SANITIZE)
    add_compile_options(-fsanitize=${ZEL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ZEL_SANITIZE})
endif()

# zel_link_library(TARGET MAP): exports what the version script MAP names. The library stays loaded when the plug-in
# that loaded it is unloaded, because Qt keeps pointers to its meta-types.
function(zel_link_library target map)
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${map}")
    target_link_options(${target} PRIVATE "LINKER:--version-script=${map}" "LINKER:-z,nodelete")
    if(NOT ZEL_SANITIZE) # the program has the sanitizer's functions
        target_link_options(${target} PRIVATE "LINKER:--no-undefined")
    endif()
endfunction()
