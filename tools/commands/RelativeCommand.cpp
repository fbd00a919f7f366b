// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "commands/Commands.h"

#include "Arguments.h"
#include "device/Device.h"
#include "device/LibrarySettings.h"
#include "terminal/Console.h"
#include "terminal/Table.h"
#include "texts/Answers.h"
#include "texts/ExampleMoments.h"
#include "texts/Moment.h"
#include "texts/MomentReader.h"
#include "texts/Moments.h"
#include <memory>
#include <QtCore/QMap>
#include <zel/utility/i18n/RelativeDateFormatter.h>

namespace zel::tool {

namespace {

using zel::utility::i18n::RelativeDateFormatter;
namespace ClockFormat = zel::utility::i18n::ClockFormat;
namespace RelativeDateFormat = zel::utility::i18n::RelativeDateFormat;
namespace RelativeDateWording = zel::utility::i18n::RelativeDateWording;

const QMap<QString, int>& types()
{
    static const QMap<QString, int> types = {
        {QStringLiteral("time-critical"), RelativeDateFormat::TimeCritical},
        {QStringLiteral("non-time-critical"), RelativeDateFormat::NonTimeCritical}};
    return types;
}

const QMap<QString, int>& clocks()
{
    static const QMap<QString, int> clocks = {{QStringLiteral("user"), ClockFormat::ApplyUserFormat},
                                              {QStringLiteral("locale"), ClockFormat::ApplyLocaleFormat},
                                              {QStringLiteral("12"), ClockFormat::Use12hourClock},
                                              {QStringLiteral("24"), ClockFormat::Use24hourClock}};
    return clocks;
}

const QMap<QString, int>& wordings()
{
    static const QMap<QString, int> wordings = {{QStringLiteral("exact"), RelativeDateWording::Exact},
                                                {QStringLiteral("natural"), RelativeDateWording::Natural}};
    return wordings;
}

// Makes formatters with the options applied.
class Formatters
{
public:
    Formatters(const Arguments& arguments, const MomentReader& reader, const QDateTime& defaultAnchor)
        : m_clock(static_cast<ClockFormat::Type>(
              arguments.choice(QStringLiteral("clock"), clocks(), ClockFormat::ApplyUserFormat))),
          m_wording(static_cast<RelativeDateWording::Type>(
              arguments.choice(QStringLiteral("wording"), wordings(), RelativeDateWording::Exact))),
          m_anchor(arguments.moment(QStringLiteral("anchor"), reader, defaultAnchor))
    {
    }

    const QDateTime& anchor() const { return m_anchor; }

    std::unique_ptr<RelativeDateFormatter> make(int type, const QLocale& locale) const
    {
        auto formatter = std::make_unique<RelativeDateFormatter>(static_cast<RelativeDateFormat::Type>(type));
        formatter->setLocale(locale);
        formatter->setClockFormat(m_clock);
        formatter->setWording(m_wording);
        formatter->setAnchorTime(m_anchor);
        return formatter;
    }

private:
    ClockFormat::Type m_clock;
    RelativeDateWording::Type m_wording;
    QDateTime m_anchor;
};

int typeOf(const Arguments& arguments)
{
    return arguments.choice(QStringLiteral("type"), types(), RelativeDateFormat::TimeCritical);
}

ExitStatus writeMoments(const Arguments& arguments, Console& console)
{
    if (arguments.positional().isEmpty()) {
        throw Failure::usage(QStringLiteral("no moment given"));
    }
    const MomentReader reader(MomentReader::Converted, Device::timeZone());
    const Moments moments(arguments.positional(), reader);
    const Formatters formatters(arguments, reader, reader.now());
    const int type = typeOf(arguments);
    const auto formatter = formatters.make(type, arguments.locale().locale);
    const Answers answers(console, arguments.json());
    const bool until = arguments.has(QStringLiteral("until"));
    Device::keepLocalTime();
    return moments.format(
        console, arguments.json(), [&](const QList<QDateTime>& list) { return formatter->formatAll(list); },
        [&](const QDateTime& moment, const QString& text) {
            if (until) {
                answers.write(moment, text, formatter->validUntil(moment));
            } else {
                answers.write(moment, text);
            }
        });
}

// The texts of the examples for one type: one column per locale, in the order of the moments.
struct ExampleTexts
{
    int type;
    QDateTime anchor;
    QList<ExampleMoment> moments;
    QList<NamedLocale> locales;
    QList<QStringList> columns;
};

ExampleTexts exampleTexts(int type, const QList<NamedLocale>& locales, const Formatters& formatters)
{
    ExampleTexts texts = {type, formatters.anchor(), exampleMoments(type, formatters.anchor()), locales, {}};
    for (const NamedLocale& locale : locales) {
        const auto formatter = formatters.make(type, locale.locale);
        QStringList column;
        for (const ExampleMoment& example : texts.moments) {
            column.append(formatter->format(example.moment));
        }
        texts.columns.append(column);
    }
    return texts;
}

void writeJson(const ExampleTexts& texts, Console& console)
{
    for (int column = 0; column < texts.locales.size(); ++column) {
        for (int row = 0; row < texts.moments.size(); ++row) {
            console.json({{QStringLiteral("type"), types().key(texts.type)},
                          {QStringLiteral("locale"), texts.locales[column].name},
                          {QStringLiteral("anchor"), Moment::write(texts.anchor)},
                          {QStringLiteral("distance"), texts.moments[row].distance},
                          {QStringLiteral("moment"), Moment::write(texts.moments[row].moment)},
                          {QStringLiteral("text"), texts.columns[column][row]}});
        }
    }
}

// A range of columns, side by side.
Table tableOf(const ExampleTexts& texts, int from, int to)
{
    Table table;
    const QString minutes = QStringLiteral("yyyy-MM-dd HH:mm");
    QStringList header = {types().key(texts.type), texts.anchor.toString(minutes)};
    for (int column = from; column < to; ++column) {
        header.append(texts.locales[column].name);
    }
    table.add(header);
    for (int row = 0; row < texts.moments.size(); ++row) {
        QStringList cells = {texts.moments[row].distance, texts.moments[row].moment.toString(minutes)};
        for (int column = from; column < to; ++column) {
            cells.append(texts.columns[column][row]);
        }
        table.add(cells);
    }
    return table;
}

// As many columns side by side as fit on the terminal.
void writeTables(const ExampleTexts& texts, Console& console)
{
    const auto count = static_cast<int>(texts.locales.size());
    for (int from = 0, to = 0; from < count; from = to) {
        to = count;
        while (to > from + 1 && tableOf(texts, from, to).width() > console.columns()) {
            --to;
        }
        tableOf(texts, from, to).write(console);
        if (to < count) {
            console.line({});
        }
    }
}

ExitStatus writeExamples(const Arguments& arguments, Console& console)
{
    if (!arguments.positional().isEmpty()) {
        throw Failure::usage(QStringLiteral("--table takes no moment, not ") + quoted(arguments.positional().first()));
    }
    const Formatters formatters(arguments, MomentReader(MomentReader::Converted, Device::timeZone()), exampleAnchor());
    const int chosen = typeOf(arguments);
    const QList<NamedLocale> locales = arguments.locales();
    QList<int> both = {RelativeDateFormat::TimeCritical, RelativeDateFormat::NonTimeCritical};
    for (const int type : arguments.has(QStringLiteral("type")) ? QList<int>{chosen} : both) {
        const ExampleTexts texts = exampleTexts(type, locales, formatters);
        if (arguments.json()) {
            writeJson(texts, console);
            continue;
        }
        if (type != chosen) {
            console.line({});
        }
        writeTables(texts, console);
    }
    return Worked;
}

// `relative`: moments relative to an anchor.
class RelativeCommand : public Command
{
public:
    CommandHelp help() const override;
    QList<QCommandLineOption> options() const override;
    QStringList choices(const QString& option) const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace

CommandHelp RelativeCommand::help() const
{
    return {
        QStringLiteral("relative"), QStringLiteral("MOMENT... | --table"),
        QStringLiteral("Format moments relative to an anchor."),
        QStringLiteral("Formats each MOMENT relative to an anchor, one text per line: 5 minutes ago,\n"
                       "yesterday with a time, a weekday, a month and day, a month and year. '-' reads\n"
                       "moments from standard input, one per line; invalid lines are reported and skipped.\n\n"
                       "Moments are written as in 'format'. Moments with an offset, and seconds since 1970,\n"
                       "are converted to the time zone of the device, or to local time where it has none.\n"
                       "Without an offset, a moment is taken as a reading of the device's clock, whatever the\n"
                       "zone of the process. To compare the readings of clocks in several zones, omit the offsets.\n\n"
                       "With --table, shows one moment for each slot of the formatting tables, before and\n"
                       "after the anchor, for each locale."),
        QStringLiteral("relative 2012-09-03T10:25 --anchor 2012-09-03T10:30\n"
                       "relative - --locale fr_FR --type non-time-critical < moments.txt\n"
                       "relative 'Mon, 3 Sep 2012 10:25:00 +0200' --anchor @1346661000\n"
                       "relative --table --locale en_GB --locale de_DE --locale ja_JP")};
}

QList<QCommandLineOption> RelativeCommand::options() const
{
    return {
        {QStringLiteral("type"),
         QStringLiteral("time-critical: down to minutes, days with the time.\nnon-time-critical: days and coarser.\n"
                        "Default: time-critical; with --table both."),
         QStringLiteral("TYPE")},
        {QStringLiteral("anchor"),
         QStringLiteral("Moment to count from (default: now; with --table:\n"
                        "2012-09-03T10:30)."),
         QStringLiteral("MOMENT")},
        {QStringLiteral("clock"),
         QStringLiteral("user: clock of the device; locale: clock customary in the\nlocale; 12; 24 (default: "
                        "user)."),
         QStringLiteral("CLOCK")},
        {QStringLiteral("locale"), QStringLiteral("Locale (default: region of the device). Repeatable with\n--table."),
         QStringLiteral("L")},
        {QStringLiteral("wording"),
         QStringLiteral("exact, or natural: \"now\" instead of \"in 0 minutes\", and near\ndays by name across "
                        "the turn of the year (default: exact)."),
         QStringLiteral("WORDING")},
        {QStringLiteral("until"),
         QStringLiteral("Append a tab and the anchor time at which the text changes,\nor \"never\".")},
        {QStringLiteral("table"), QStringLiteral("Show one moment for each slot of the formatting tables.")}};
}

QStringList RelativeCommand::choices(const QString& option) const
{
    const QMap<QString, QMap<QString, int>> choices = {{QStringLiteral("type"), types()},
                                                       {QStringLiteral("clock"), clocks()},
                                                       {QStringLiteral("wording"), wordings()}};
    return choices.value(option).keys();
}

ExitStatus RelativeCommand::run(const Arguments& arguments, Console& console) const
{
    Device::requireReadable();
    readSettings();
    return arguments.has(QStringLiteral("table")) ? writeExamples(arguments, console)
                                                  : writeMoments(arguments, console);
}

std::unique_ptr<Command> relativeCommand()
{
    return std::make_unique<RelativeCommand>();
}

} // namespace zel::tool
