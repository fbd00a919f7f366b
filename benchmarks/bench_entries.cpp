// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Times every entry and its floor, and one thread against two.

#include "Entry.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/Formatting.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

namespace {

using namespace zel::utility::i18n;

const QDateTime moment(QDate(2012, 9, 3), QTime(10, 30));
const QLocale locale(QStringLiteral("en_US"));

void run(benchmark::State& state, const std::function<QString()>& side)
{
    for (auto step : state) {
        benchmark::DoNotOptimize(side());
    }
}

// On one or more threads, each with its own formatter.

void threadsCustom(benchmark::State& state)
{
    const CustomDateFormatter formatter(QStringLiteral("yMMMd"));
    run(state, [&formatter] { return formatter.format(moment); });
    state.SetItemsProcessed(state.iterations());
}

void threadsRelative(benchmark::State& state)
{
    RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
    formatter.setAnchorTime(moment);
    run(state, [&formatter] { return formatter.format(moment.addSecs(-300)); });
    state.SetItemsProcessed(state.iterations());
}

void threadsDateFormat(benchmark::State& state)
{
    run(state, [] { return dateFormat(locale, DateFormat::Medium); });
    state.SetItemsProcessed(state.iterations());
}

void registerEntries()
{
    for (const Entry& entry : entries()) {
        benchmark::RegisterBenchmark((entry.name + "/ours").c_str(), run, entry.ours);
        benchmark::RegisterBenchmark((entry.name + "/floor").c_str(), run, entry.floor);
    }
}

void registerThreads()
{
    for (const int threads : {1, 2}) {
        benchmark::RegisterBenchmark("custom", threadsCustom)->Threads(threads)->UseRealTime();
        benchmark::RegisterBenchmark("relative", threadsRelative)->Threads(threads)->UseRealTime();
        benchmark::RegisterBenchmark("dateFormat", threadsDateFormat)->Threads(threads)->UseRealTime();
    }
}

} // namespace

int main(int argc, char** argv)
{
    for (const std::string& name : mismatches()) {
        std::fprintf(stderr, "%s: the two sides do not give the same text\n", name.c_str());
        return 1;
    }
    registerEntries();
    registerThreads();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
