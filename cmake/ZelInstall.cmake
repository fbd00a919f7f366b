# SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
# SPDX-License-Identifier: Apache-2.0

# The installed files by component: the library, its data, the licences, the development files, the tool.
# Applications use the public headers and one library. The platform libraries are installed because it needs them, without
# headers and without a name to link with.

include(CMakePackageConfigHelpers)

set(packageDirectory "${CMAKE_INSTALL_LIBDIR}/cmake/ZelUtilityI18n")
set(pkgConfigDirectory "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
set(platformLibraries zelicudata)
if(ZEL_PLATFORM STREQUAL orvo)
    list(APPEND platformLibraries zel zelsystem)
endif()

install(TARGETS zelutilityi18n EXPORT ZelUtilityI18nTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT library NAMELINK_COMPONENT development)
install(TARGETS ${platformLibraries} EXPORT ZelUtilityI18nTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT library NAMELINK_SKIP)
install(DIRECTORY "${PROJECT_BINARY_DIR}/share/zel/icu/" DESTINATION "${CMAKE_INSTALL_DATADIR}/zel/icu" COMPONENT data
    FILES_MATCHING PATTERN "*.res" PATTERN "bundles.list" PATTERN "*.unfinished.*" EXCLUDE)
# Copies of the data need their licence with them. A Debian package has both in its copyright file.
install(DIRECTORY "${PROJECT_SOURCE_DIR}/LICENSES/"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/licenses/zel-utility-i18n" COMPONENT licences)
if(ZEL_BUILD_TOOL)
    install(TARGETS zel-i18n RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT tool)
    install(FILES "${PROJECT_SOURCE_DIR}/tools/zel-i18n.1"
        DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT tool)
    # The directories that the shells search; below /usr, Debian's zsh searches share/zsh/vendor-completions.
    if(NOT ZEL_ZSH_COMPLETIONS)
        set(ZEL_ZSH_COMPLETIONS "${CMAKE_INSTALL_DATADIR}/zsh/site-functions")
    endif()
    install(FILES "${PROJECT_SOURCE_DIR}/tools/zel-i18n.bash-completion"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME zel-i18n COMPONENT tool)
    install(FILES "${PROJECT_SOURCE_DIR}/tools/zel-i18n.zsh-completion"
        DESTINATION "${ZEL_ZSH_COMPLETIONS}" RENAME _zel-i18n COMPONENT tool)
    install(FILES "${PROJECT_SOURCE_DIR}/tools/zel-i18n.fish"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d" COMPONENT tool)
endif()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/zel/utility"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/zel" COMPONENT development)

# The CMake package and the pkg-config module. ICU is private: applications do not need it to build.
set(qtVersion "${Qt${ZEL_QT_MAJOR}Core_VERSION_MAJOR}.${Qt${ZEL_QT_MAJOR}Core_VERSION_MINOR}")
install(EXPORT ZelUtilityI18nTargets NAMESPACE Zel:: DESTINATION "${packageDirectory}" COMPONENT development)
configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/ZelUtilityI18nConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/ZelUtilityI18nConfig.cmake"
    INSTALL_DESTINATION "${packageDirectory}" PATH_VARS ZEL_QML_INSTALL_DIR NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/ZelUtilityI18nConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/ZelUtilityI18nConfig.cmake"
    "${PROJECT_BINARY_DIR}/ZelUtilityI18nConfigVersion.cmake"
    DESTINATION "${packageDirectory}" COMPONENT development)

file(RELATIVE_PATH prefixFromPkgConfig
    "${CMAKE_INSTALL_PREFIX}/${pkgConfigDirectory}" "${CMAKE_INSTALL_PREFIX}")
string(REGEX REPLACE "/$" "" prefixFromPkgConfig "${prefixFromPkgConfig}")
configure_file("${CMAKE_CURRENT_LIST_DIR}/zelutilityi18n.pc.in" "${PROJECT_BINARY_DIR}/zelutilityi18n.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/zelutilityi18n.pc"
    DESTINATION "${pkgConfigDirectory}" COMPONENT development)
