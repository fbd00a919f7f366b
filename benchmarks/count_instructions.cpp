// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Counts the instructions of entries and floors under callgrind: one dump per side, named after it.
//
// usage: valgrind --tool=callgrind count_instructions [ENTRY...]      (default: every entry)

#include "Entry.h"

#include <algorithm>
#include <cstdio>
#include <valgrind/callgrind.h>

namespace {

constexpr int warmUp = 4;
// Even, so that entries that alternate between two inputs use both equally often.
constexpr int runs = 20;

void repeat(const std::function<QString()>& side, int times)
{
    for (int i = 0; i < times; ++i) {
        side();
    }
}

void count(const std::string& name, const std::function<QString()>& side)
{
    repeat(side, warmUp);
    CALLGRIND_ZERO_STATS;
    repeat(side, runs);
    CALLGRIND_DUMP_STATS_AT(name.c_str());
}

} // namespace

int main(int argc, char** argv)
{
    for (const std::string& name : mismatches()) {
        std::fprintf(stderr, "%s: the two sides do not give the same text\n", name.c_str());
        return 1;
    }
    std::printf("runs %d\n", runs);
    const char* const* const chosen = argv + 1;
    for (const Entry& entry : entries()) {
        if (argc == 1 || std::find(chosen, chosen + argc - 1, entry.name) != chosen + argc - 1) {
            count(entry.name + "/ours", entry.ours);
            count(entry.name + "/floor", entry.floor);
        }
    }
    return 0;
}
