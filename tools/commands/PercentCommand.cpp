// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "commands/Commands.h"

#include "Arguments.h"
#include "terminal/Console.h"
#include "terminal/LineAnswers.h"
#include <cmath>
#include <zel/utility/i18n/Formatting.h>

namespace zel::tool {

namespace {

constexpr int mostDigits = 340;

// "1,5" is not 15.
QLocale withoutGroups()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    return locale;
}

double number(const QString& word)
{
    static const QLocale locale = withoutGroups();
    bool ok = false;
    const double value = locale.toDouble(word, &ok);
    if (!ok || std::isnan(value)) {
        throw Failure(quoted(word) + QStringLiteral(" is not a number such as 0.256"));
    }
    return value;
}

double numberInLine(std::string_view line)
{
    return number(QString::fromUtf8(line.data(), static_cast<int>(line.size())));
}

// Formats values and writes their texts, with the options applied.
class Percentages
{
public:
    Percentages(const Arguments& arguments, Console& console)
        : m_console(console),
          m_json(arguments.json()),
          m_fewest(arguments.number(QStringLiteral("min"), 0, mostDigits)),
          m_most(arguments.number(QStringLiteral("max"), m_fewest, mostDigits)),
          m_locale(arguments.locale())
    {
    }

    QStringList format(const QList<double>& values) const
    {
        QStringList texts;
        for (const double value : values) {
            texts.append(zel::utility::i18n::toPercentageString(m_locale.locale, value, m_most, m_fewest));
        }
        return texts;
    }

    void write(double value, const QString& text) const
    {
        if (text.isNull()) {
            throw Failure(QStringLiteral("no percentages for the locale ") + quoted(m_locale.name));
        }
        if (!m_json) {
            m_console.line(text);
            return;
        }
        // JSON has no infinities.
        const QJsonValue number = std::isfinite(value) ? QJsonValue(value) : QJsonValue(QString::number(value));
        m_console.json({{QStringLiteral("locale"), m_locale.name},
                        {QStringLiteral("text"), text},
                        {QStringLiteral("value"), number}});
    }

private:
    Console& m_console;
    bool m_json;
    int m_fewest;
    int m_most;
    NamedLocale m_locale;
};

// `percent`: numbers as percentages.
class PercentCommand : public Command
{
public:
    CommandHelp help() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace

CommandHelp PercentCommand::help() const
{
    return {QStringLiteral("percent"), QStringLiteral("VALUE... | -"), QStringLiteral("Format numbers as percentages."),
            QStringLiteral("Formats each VALUE as a percentage, one per line: 0.25 is 25% in English. Values have\n"
                           "a decimal point; 1 is 100 %. '-' reads values from standard input, one per line;\n"
                           "invalid lines are reported and skipped."),
            QStringLiteral("percent 0.256\n"
                           "percent - < values.txt\n"
                           "percent --max 1 0.256 -0.5\n"
                           "percent --min 2 --locale ar_EG 12.5")};
}

QList<QCommandLineOption> PercentCommand::options() const
{
    return {{QStringLiteral("locale"), QStringLiteral("Locale (default: region of the device)."), QStringLiteral("L")},
            {QStringLiteral("min"), QStringLiteral("Minimum fraction digits (default: 0)."), QStringLiteral("N")},
            {QStringLiteral("max"), QStringLiteral("Maximum fraction digits (default: value of --min)."),
             QStringLiteral("N")}};
}

ExitStatus PercentCommand::run(const Arguments& arguments, Console& console) const
{
    const QStringList words = arguments.positional();
    if (words.isEmpty()) {
        throw Failure::usage(QStringLiteral("no value given"));
    }
    const bool fromInput = words == QStringList(QStringLiteral("-"));
    QList<double> values;
    for (const QString& word : fromInput ? QStringList() : words) {
        values.append(number(word));
    }
    const Percentages percentages(arguments, console);
    const auto format = [&](const QList<double>& list) { return percentages.format(list); };
    const auto write = [&](double value, const QString& text) { percentages.write(value, text); };
    if (fromInput) {
        return LineAnswers(console, arguments.json()).run(&numberInLine, format, write);
    }
    const QStringList texts = format(values);
    for (int i = 0; i < values.size(); ++i) {
        write(values[i], texts[i]);
    }
    return Worked;
}

std::unique_ptr<Command> percentCommand()
{
    return std::make_unique<PercentCommand>();
}

} // namespace zel::tool
