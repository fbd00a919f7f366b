# What the library stands on: Qt Core of the chosen major version, and ICU.

if(ZEL_QT_MAJOR EQUAL 5)
    find_package(Qt5 5.15 REQUIRED COMPONENTS Core)
else()
    find_package(Qt6 6.4 REQUIRED COMPONENTS Core)
endif()

find_package(PkgConfig REQUIRED)
pkg_check_modules(ICU REQUIRED IMPORTED_TARGET GLOBAL icu-uc>=72 icu-i18n>=72)
