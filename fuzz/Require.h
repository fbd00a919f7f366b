// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_FUZZ_REQUIRE_H
#define ZEL_FUZZ_REQUIRE_H

#include <cstdio>
#include <cstdlib>

/** Ends a fuzz target with a finding unless a condition holds. */
#define ZEL_REQUIRE(condition)                                                                                         \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #condition);                        \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)

#endif
