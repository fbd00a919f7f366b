// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_BENCHMARKS_STOPWATCH_H
#define ZEL_BENCHMARKS_STOPWATCH_H

#include <chrono>
#include <cstdio>
#include <sys/resource.h>

/** Prints on standard error the time from main() to the first text, and the memory at that point. */
class Stopwatch
{
public:
    void stop() const
    {
        const std::chrono::duration<double, std::milli> passed = std::chrono::steady_clock::now() - m_start;
        rusage usage = {};
        getrusage(RUSAGE_SELF, &usage);
        std::fprintf(stderr, "%.3f %ld\n", passed.count(), usage.ru_maxrss);
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

#endif
