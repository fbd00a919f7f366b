// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Times KFormat of KDE for many moments, one call each. A separate program, as it needs Qt 5.

#include "Moments.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <kcoreaddons_version.h>
#include <KFormat>
#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtCore/QStringList>

namespace {

void run(benchmark::State& state)
{
    const KFormat format(QLocale(QStringLiteral("en_US")));
    // KFormat counts from the current time, and writes minutes within the hour before and after it.
    const QList<QDateTime> moments =
        moments::minutesFrom(QDateTime::currentDateTime(), static_cast<int>(state.range(0)));
    for (auto step : state) {
        QStringList texts;
        texts.reserve(moments.size());
        for (const QDateTime& moment : moments) {
            texts.append(format.formatRelativeDateTime(moment, QLocale::ShortFormat));
        }
        benchmark::DoNotOptimize(texts);
    }
}

BENCHMARK(run)->Name("minutes/KFormat")->Arg(1)->Arg(10)->Arg(1000)->Arg(100'000)->ThreadRange(1, 2);

} // namespace

int main(int argc, char** argv)
{
    // As in an application: without it, Qt does not look for translations.
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    std::fprintf(stderr, "KCoreAddons %s, Qt %s\n", KCOREADDONS_VERSION_STRING, qVersion());
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
