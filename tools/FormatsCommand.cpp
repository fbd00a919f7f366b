#include "FormatsCommand.h"

#include "Arguments.h"
#include "Console.h"
#include "Device.h"
#include "LocaleTitle.h"
#include "Moment.h"
#include "Table.h"
#include <array>
#include <QtCore/QJsonArray>
#include <zel/utility/i18n/Formatting.h>

namespace zel::tool {

namespace {

using zel::utility::i18n::DateFormat::Type;

struct Kind
{
    const char* name;
    QString (*pattern)(const QLocale& locale, Type length);
};

struct Length
{
    const char* name;
    Type type;
};

constexpr std::array<Kind, 3> kinds = {{{"date", &zel::utility::i18n::dateFormat},
                                        {"time", &zel::utility::i18n::timeFormat},
                                        {"date-time", &zel::utility::i18n::dateTimeFormat}}};

constexpr std::array<Length, 4> lengths = {
    {{"short", Type::Short}, {"medium", Type::Medium}, {"long", Type::Long}, {"full", Type::Full}}};

struct Format
{
    QString kind;
    QString length;
    QString pattern;
    QString text;
};

QList<Format> formatsOf(const QLocale& locale, const QDateTime& moment)
{
    QList<Format> formats;
    for (const Kind& kind : kinds) {
        for (const Length& length : lengths) {
            const QString pattern = kind.pattern(locale, length.type);
            formats.append({QString::fromLatin1(kind.name), QString::fromLatin1(length.name), pattern,
                            locale.toString(moment, pattern)});
        }
    }
    return formats;
}

void writeTable(const NamedLocale& locale, const QList<Format>& formats, Console& console)
{
    Table table;
    for (const Format& format : formats) {
        table.add({format.kind, format.length, format.pattern, format.text});
    }
    console.line(locale.name + QLatin1String("  ") + localeTitle(locale.name));
    table.write(console);
}

void writeJson(const NamedLocale& locale, const QList<Format>& formats, const QDateTime& moment, Console& console)
{
    QJsonArray entries;
    for (const Format& format : formats) {
        entries.append(QJsonObject{{QStringLiteral("kind"), format.kind},
                                   {QStringLiteral("length"), format.length},
                                   {QStringLiteral("pattern"), format.pattern},
                                   {QStringLiteral("text"), format.text}});
    }
    console.json({{QStringLiteral("locale"), locale.name},
                  {QStringLiteral("moment"), Moment::write(moment)},
                  {QStringLiteral("formats"), entries}});
}

} // namespace

CommandHelp FormatsCommand::help() const
{
    return {QStringLiteral("formats"), QString(), QStringLiteral("Show the date and time patterns of locales."),
            QStringLiteral("Shows the patterns of a locale for dates, times and both together in all lengths,\n"
                           "under the clock of the device and in Qt's syntax, and a moment written with each."),
            QStringLiteral("formats\n"
                           "formats --locale ja_JP --locale fr_CA\n"
                           "formats --device region=en_US,hour-format=24")};
}

QList<QCommandLineOption> FormatsCommand::options() const
{
    return {{QStringLiteral("locale"),
             QStringLiteral("A locale, instead of the region of the device. May be given\nseveral times."),
             QStringLiteral("L")},
            {QStringLiteral("at"), QStringLiteral("The moment to write, in ISO 8601; now without it."),
             QStringLiteral("MOMENT")}};
}

ExitStatus FormatsCommand::run(const Arguments& arguments, Console& console) const
{
    if (!arguments.positional().isEmpty()) {
        throw Failure::usage(quoted(arguments.positional().first()) +
                             QStringLiteral(" is no option; name a locale with --locale"));
    }
    const QDateTime moment = arguments.moment(QStringLiteral("at"), QDateTime::currentDateTime());
    const QList<NamedLocale> locales = arguments.locales();
    Device::requireReadable();
    bool first = true;
    for (const NamedLocale& locale : locales) {
        const QList<Format> formats = formatsOf(locale.locale, moment);
        if (arguments.json()) {
            writeJson(locale, formats, moment, console);
            continue;
        }
        if (!std::exchange(first, false)) {
            console.line({});
        }
        writeTable(locale, formats, console);
    }
    return Worked;
}

} // namespace zel::tool
