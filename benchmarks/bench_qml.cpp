// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Times 10,000 elements of the QML module in one engine: their creation, each with its first text, and a renewal of
// all.

#include "QmlElements.h"
#include <benchmark/benchmark.h>
#include <QtCore/QCoreApplication>

namespace {

constexpr qint64 days = 400000; // in seconds

void create(benchmark::State& state)
{
    for (auto step : state) {
        if (!QmlElements(days).areComplete()) {
            state.SkipWithError("the last element has no text");
        }
    }
}

void renew(benchmark::State& state)
{
    QmlElements elements(days);
    for (auto step : state) {
        elements.renew();
    }
    if (!elements.areComplete()) {
        state.SkipWithError("the last element has no text");
    }
}

BENCHMARK(create);
BENCHMARK(renew);

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
