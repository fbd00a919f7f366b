// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Times the texts of 1 to 100,000 moments in one call, and those of ICU and Qt, on one thread and on two.

#include "Entry.h"
#include "List.h"

#include <benchmark/benchmark.h>
#include <cstdio>

namespace {

void run(benchmark::State& state, const List& list, const List::Side& side)
{
    const QList<QDateTime> moments = list.moments(static_cast<int>(state.range(0)));
    const List::Texts texts = side.prepare();
    for (auto step : state) {
        benchmark::DoNotOptimize(texts(moments));
    }
}

} // namespace

int main(int argc, char** argv)
{
    entries(); // sets up the device
    for (const std::string& name : listMismatches()) {
        std::fprintf(stderr, "%s: not the texts of formatAll()\n", name.c_str());
        return 1;
    }
    for (const List& list : lists()) {
        for (const List::Side& side : list.sides) {
            auto* const family = benchmark::RegisterBenchmark((list.name + "/" + side.name).c_str(),
                                                              [&](benchmark::State& state) { run(state, list, side); });
            for (const int count : {1, 10, 1000, 100'000}) {
                if (count <= side.most) {
                    family->Arg(count);
                }
            }
            family->Threads(1)->Threads(2);
        }
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
