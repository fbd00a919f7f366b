// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "Arguments.h"

#include "device/Assignments.h"
#include "device/Device.h"
#include "terminal/Failure.h"
#include "texts/MomentReader.h"
#include <QtCore/QRegularExpression>
#include <zel/system/LocaleName.h>

namespace zel::tool {

namespace {

// A negative number is not an option. A leading blank hides it from the parser.
QString hideNumber(const QString& word)
{
    static const QRegularExpression negative(QStringLiteral("\\A-(?:[0-9.]|inf|nan)"),
                                             QRegularExpression::CaseInsensitiveOption);
    return word.contains(negative) ? QLatin1Char(' ') + word : word;
}

QStringList shownAgain(QStringList words)
{
    for (QString& word : words) {
        if (word.startsWith(QLatin1String(" -"))) {
            word.remove(0, 1);
        }
    }
    return words;
}

// Qt's messages in our form.
QString asOurs(QString message)
{
    message.replace(0, 1, message.at(0).toLower());
    if (message.endsWith(QLatin1Char('.'))) {
        message.chop(1);
    }
    return message;
}

NamedLocale namedLocale(const QString& name)
{
    const std::optional<QLocale> locale = zel::system::LocaleName::find(name);
    if (!locale) {
        throw Failure(QStringLiteral("unknown locale ") + quoted(name));
    }
    return {name, *locale};
}

} // namespace

Arguments::Arguments(const QList<QCommandLineOption>& options, const QStringList& words)
{
    m_parser.addOptions(options);
    QStringList line(QString{});
    for (const QString& word : words) {
        line.append(hideNumber(word));
    }
    if (!m_parser.parse(line)) {
        throw Failure::usage(asOurs(m_parser.errorText()));
    }
}

QStringList Arguments::positional() const
{
    return shownAgain(m_parser.positionalArguments());
}

QString Arguments::value(const QString& option) const
{
    const QStringList values = shownAgain(m_parser.values(option));
    if (values.size() > 1) {
        throw Failure::usage(QStringLiteral("--%1 was given more than once").arg(option));
    }
    return values.value(0);
}

int Arguments::number(const QString& option, int fallback, int largest) const
{
    if (!has(option)) {
        return fallback;
    }
    bool ok = false;
    const int number = value(option).toInt(&ok);
    if (!ok || number < 0 || number > largest) {
        throw Failure::usage(QStringLiteral("--%1 takes a number from 0 to %2, not ").arg(option).arg(largest) +
                             quoted(value(option)));
    }
    return number;
}

QDateTime Arguments::moment(const QString& option, const MomentReader& reader, const QDateTime& fallback) const
{
    return has(option) ? reader.read(value(option)) : fallback;
}

int Arguments::choice(const QString& option, const QMap<QString, int>& choices, int fallback) const
{
    if (!has(option)) {
        return fallback;
    }
    const auto chosen = choices.find(value(option));
    if (chosen == choices.end()) {
        throw Failure::usage(
            QStringLiteral("--%1 takes %2, not ").arg(option, QStringList(choices.keys()).join(QLatin1String(", "))) +
            quoted(value(option)));
    }
    return *chosen;
}

QList<NamedLocale> Arguments::locales() const
{
    QList<NamedLocale> locales;
    for (const QString& name : shownAgain(m_parser.values(QStringLiteral("locale")))) {
        locales.append(namedLocale(name));
    }
    if (locales.isEmpty()) {
        Device::get(Assignments::region()); // a Failure if it cannot be read
        const QLocale region = Device::region();
        locales.append({region.name(), region});
    }
    return locales;
}

NamedLocale Arguments::locale() const
{
    const QList<NamedLocale> all = locales();
    if (all.size() > 1) {
        throw Failure::usage(QStringLiteral("--locale was given more than once"));
    }
    return all.first();
}

} // namespace zel::tool
