// Times every entry beside its floor, ICU's and Qt's nearest equivalents, and one thread against two.

#include "Entry.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <unicode/reldatefmt.h>
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/Formatting.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

namespace {

using namespace zel::utility::i18n;

const QDateTime moment(QDate(2012, 5, 16), QTime(10, 30));
const QLocale locale(QStringLiteral("en_US"));

void run(benchmark::State& state, const std::function<QString()>& side)
{
    for (auto step : state) {
        benchmark::DoNotOptimize(side());
    }
}

void qtDate(benchmark::State& state)
{
    run(state, [] { return locale.toString(moment.date(), QLocale::ShortFormat); });
}

void qtDateTime(benchmark::State& state)
{
    run(state, [] { return locale.toString(moment, QLocale::ShortFormat); });
}

QString minutesAgo(const icu::RelativeDateTimeFormatter& formatter)
{
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString text;
    formatter.format(5.0, UDAT_DIRECTION_LAST, UDAT_RELATIVE_MINUTES, text, status);
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

void icuRelativeKept(benchmark::State& state)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::RelativeDateTimeFormatter formatter(icu::Locale::getUS(), status);
    run(state, [&formatter] { return minutesAgo(formatter); });
}

void icuRelativeAnew(benchmark::State& state)
{
    run(state, [] {
        UErrorCode status = U_ZERO_ERROR;
        return minutesAgo(icu::RelativeDateTimeFormatter(icu::Locale::getUS(), status));
    });
}

// On one or more threads, each with a formatter of its own.

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

void registerOthers()
{
    benchmark::RegisterBenchmark("QLocale::toString date/peer", qtDate);
    benchmark::RegisterBenchmark("QLocale::toString date and time/peer", qtDateTime);
    benchmark::RegisterBenchmark("icu::RelativeDateTimeFormatter kept/peer", icuRelativeKept);
    benchmark::RegisterBenchmark("icu::RelativeDateTimeFormatter anew/peer", icuRelativeAnew);
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
    registerOthers();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
