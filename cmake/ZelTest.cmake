# SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
# SPDX-License-Identifier: Apache-2.0

# zel_add_test(<name>) builds tests/tst_<name>.cpp against the static library and registers it, or only the
# test functions in ZEL_TEST_FUNCTIONS, with ctest.

if(ZEL_QT_MAJOR EQUAL 5)
    find_package(Qt5 REQUIRED COMPONENTS Test)
else()
    find_package(Qt6 REQUIRED COMPONENTS Test)
endif()

set(ZEL_TEST_TIMEOUT 300)
if(CMAKE_CROSSCOMPILING)
    set(ZEL_TEST_TIMEOUT 1800) # under an emulator
endif()

function(zel_add_test name)
    add_executable(tst_${name} tst_${name}.cpp ${ARGN})
    target_include_directories(tst_${name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(tst_${name} PRIVATE zelutilityi18n_static Qt::Test zel_warnings)
    if(Qt6Test_VERSION VERSION_GREATER_EQUAL 6.7 AND Qt6Test_VERSION VERSION_LESS 6.11)
        # The QTRY macros of these versions cause conversion warnings.
        set_source_files_properties(tst_${name}.cpp PROPERTIES COMPILE_OPTIONS -Wno-conversion)
    endif()
    target_compile_definitions(tst_${name} PRIVATE ZEL_TEST_TIMEOUT_MS=${ZEL_TEST_TIMEOUT}000)
    add_test(NAME ${name} COMMAND tst_${name} ${ZEL_TEST_FUNCTIONS})
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ZEL_TEST_TIMEOUT}
        ENVIRONMENT_MODIFICATION "QTEST_FUNCTION_TIMEOUT=set:${ZEL_TEST_TIMEOUT}000")
    if(ZEL_SANITIZE MATCHES thread)
        # Qt, ICU and the C library are not instrumented: the sanitizer cannot see their locks and atomics.
        set_tests_properties(${name} PROPERTIES ENVIRONMENT "TSAN_OPTIONS=ignore_noninstrumented_modules=1")
    endif()
endfunction()
