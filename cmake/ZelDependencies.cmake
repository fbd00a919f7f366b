# What the library stands on: Qt Core of the chosen major version, and ICU. On a desktop it also asks the settings portal.

set(qtComponents Core)
if(ZEL_PLATFORM STREQUAL desktop)
    list(APPEND qtComponents DBus)
endif()
if(ZEL_QT_MAJOR EQUAL 5)
    find_package(Qt5 5.15 REQUIRED COMPONENTS ${qtComponents})
else()
    find_package(Qt6 6.4 REQUIRED COMPONENTS ${qtComponents})
endif()

find_package(PkgConfig REQUIRED)
pkg_check_modules(ZEL_ICU REQUIRED IMPORTED_TARGET GLOBAL icu-uc>=72 icu-i18n>=72)
