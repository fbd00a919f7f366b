# SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
# SPDX-License-Identifier: Apache-2.0

# The dependencies: Qt Core of the chosen major version, and ICU. The desktop build also needs Qt D-Bus.

set(qtComponents Core)
if(ZEL_PLATFORM STREQUAL desktop)
    list(APPEND qtComponents DBus)
endif()
if(ZEL_QT_MAJOR EQUAL 5)
    find_package(Qt5 5.15 REQUIRED COMPONENTS ${qtComponents})
else()
    find_package(Qt6 6.4 REQUIRED COMPONENTS ${qtComponents})
endif()


# The QML module, if requested and possible. From here on ZEL_QML is ON or OFF.
if(ZEL_QT_MAJOR EQUAL 5)
    if(NOT ZEL_QML STREQUAL AUTO AND ZEL_QML)
        message(FATAL_ERROR "ZEL_QML is ${ZEL_QML}, but the QML module needs Qt 6")
    endif()
    message(STATUS "The QML module needs Qt 6: it is left out")
    set(ZEL_QML OFF)
elseif(ZEL_QML STREQUAL AUTO)
    find_package(Qt6 6.4 QUIET OPTIONAL_COMPONENTS Qml)
    set(ZEL_QML ${Qt6Qml_FOUND})
    if(NOT ZEL_QML)
        message(STATUS "Qt Qml is not installed: the QML module is left out")
    endif()
elseif(ZEL_QML)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Qml)
endif()

find_package(PkgConfig REQUIRED)
pkg_check_modules(ZEL_ICU REQUIRED IMPORTED_TARGET GLOBAL icu-uc>=72 icu-i18n>=72)
