// Times what KDE offers for a relative date. It stands on Qt 5, and so in a program of its own.

#include <benchmark/benchmark.h>
#include <KFormat>
#include <QtCore/QDateTime>
#include <QtCore/QLocale>

namespace {

void relativeDateTime(benchmark::State& state)
{
    const KFormat format(QLocale(QStringLiteral("en_US")));
    const QDateTime moment = QDateTime::currentDateTime().addSecs(-300);
    for (auto step : state) {
        benchmark::DoNotOptimize(format.formatRelativeDateTime(moment, QLocale::ShortFormat));
    }
}

void yesterday(benchmark::State& state)
{
    const KFormat format(QLocale(QStringLiteral("en_US")));
    const QDateTime moment = QDateTime::currentDateTime().addDays(-1);
    for (auto step : state) {
        benchmark::DoNotOptimize(format.formatRelativeDateTime(moment, QLocale::ShortFormat));
    }
}

BENCHMARK(relativeDateTime)->Name("KFormat::formatRelativeDateTime minutes ago/peer");
BENCHMARK(yesterday)->Name("KFormat::formatRelativeDateTime yesterday/peer");

} // namespace

BENCHMARK_MAIN();
