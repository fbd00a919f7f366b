// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "commands/Commands.h"

#include "Arguments.h"
#include "device/Device.h"
#include "device/LibrarySettings.h"
#include "terminal/Console.h"
#include "terminal/Table.h"
#include "texts/Format.h"
#include "texts/KnownLocale.h"
#include "texts/Moment.h"
#include "texts/MomentReader.h"
#include <QtCore/QJsonArray>
#include <utility>

namespace zel::tool {

namespace {

struct Line
{
    Format format;
    QString pattern;
    QString text;
};

QList<Line> linesOf(const QLocale& locale, const QDateTime& moment)
{
    QList<Line> lines;
    for (const Format& format : Format::all()) {
        const QString pattern = format.pattern(locale);
        lines.append({format, pattern, locale.toString(moment, pattern)});
    }
    return lines;
}

void writeTable(const NamedLocale& locale, const QList<Line>& lines, Console& console)
{
    Table table;
    for (const Line& line : lines) {
        table.add({line.format.kind(), line.format.length(), line.pattern, line.text});
    }
    console.line(locale.name + QLatin1String("  ") + KnownLocale(locale.name).englishTitle());
    table.write(console);
}

void writeJson(const NamedLocale& locale, const QList<Line>& lines, const QDateTime& moment, Console& console)
{
    QJsonArray entries;
    for (const Line& line : lines) {
        entries.append(QJsonObject{{QStringLiteral("kind"), line.format.kind()},
                                   {QStringLiteral("length"), line.format.length()},
                                   {QStringLiteral("pattern"), line.pattern},
                                   {QStringLiteral("text"), line.text}});
    }
    console.json({{QStringLiteral("locale"), locale.name},
                  {QStringLiteral("moment"), Moment::write(moment)},
                  {QStringLiteral("formats"), entries}});
}

// `formats`: the patterns of a locale.
class FormatsCommand : public Command
{
public:
    CommandHelp help() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace

CommandHelp FormatsCommand::help() const
{
    return {QStringLiteral("formats"), QString(), QStringLiteral("Show the date and time patterns of locales."),
            QStringLiteral("Shows the date, time and date-time patterns of a locale in all lengths, in Qt syntax\n"
                           "and under the clock of the device, each with a formatted moment."),
            QStringLiteral("formats\n"
                           "formats --locale ja_JP --locale fr_CA\n"
                           "formats --device region=en_US,hour-format=24")};
}

QList<QCommandLineOption> FormatsCommand::options() const
{
    return {{QStringLiteral("locale"), QStringLiteral("Locale (default: region of the device). Repeatable."),
             QStringLiteral("L")},
            {QStringLiteral("at"), QStringLiteral("Moment to format (default: now)."), QStringLiteral("MOMENT")}};
}

ExitStatus FormatsCommand::run(const Arguments& arguments, Console& console) const
{
    if (!arguments.positional().isEmpty()) {
        throw Failure::usage(QStringLiteral("unexpected argument ") + quoted(arguments.positional().first()) +
                             QStringLiteral("; use --locale for a locale"));
    }
    const QList<NamedLocale> locales = arguments.locales();
    Device::requireReadable();
    readClock();
    const MomentReader reader(MomentReader::Kept, Device::timeZone());
    const QDateTime moment = arguments.moment(QStringLiteral("at"), reader, reader.now());
    bool first = true;
    for (const NamedLocale& locale : locales) {
        const QList<Line> lines = linesOf(locale.locale, moment);
        if (arguments.json()) {
            writeJson(locale, lines, moment, console);
            continue;
        }
        if (!std::exchange(first, false)) {
            console.line({});
        }
        writeTable(locale, lines, console);
    }
    return Worked;
}

std::unique_ptr<Command> formatsCommand()
{
    return std::make_unique<FormatsCommand>();
}

} // namespace zel::tool
