// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "device/Assignments.h"

#include "terminal/Failure.h"
#include "texts/KnownLocale.h"
#include <memory>
#include <unicode/errorcode.h>
#include <unicode/strenum.h>
#include <unicode/timezone.h>
#include <zel/system/LocaleName.h>

namespace zel::tool {

namespace {

bool isTimeZone(const QString& value)
{
    const icu::UnicodeString id(reinterpret_cast<const char16_t*>(value.utf16()), static_cast<int32_t>(value.size()));
    const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createTimeZone(id));
    return zone != nullptr && *zone != icu::TimeZone::getUnknown();
}

QStringList timeZones()
{
    QStringList names;
    icu::ErrorCode status;
    const std::unique_ptr<icu::StringEnumeration> all(
        icu::TimeZone::createTimeZoneIDEnumeration(UCAL_ZONE_TYPE_ANY, nullptr, nullptr, status));
    while (const char* const name = status.isSuccess() ? all->next(nullptr, status) : nullptr) {
        names.append(QString::fromLatin1(name));
    }
    return names;
}

QStringList valuesOf(const QString& key)
{
    if (key == Assignments::hourFormat()) {
        return {QStringLiteral("12"), QStringLiteral("24")};
    }
    if (key == Assignments::timeZone()) {
        return timeZones();
    }
    return key == Assignments::region() ? KnownLocale::names() : QStringList();
}

} // namespace

QString Assignments::hourFormat()
{
    return QStringLiteral("hour-format");
}

QString Assignments::timeZone()
{
    return QStringLiteral("time-zone");
}

QString Assignments::region()
{
    return QStringLiteral("region");
}

QStringList Assignments::keys()
{
    return {hourFormat(), timeZone(), region()};
}

void Assignments::requireKey(const QString& key)
{
    if (!keys().contains(key)) {
        throw Failure::usage(QStringLiteral("unknown setting ") + quoted(key) + QLatin1String("; settings: ") +
                             keys().join(QLatin1String(", ")));
    }
}

QString Assignments::error(const QString& key, const QString& value)
{
    if (key == hourFormat()) {
        const bool good = valuesOf(key).contains(value);
        return good ? QString() : key + QLatin1String(" is 12 or 24, not ") + quoted(value);
    }
    if (key == timeZone()) {
        return isTimeZone(value) ? QString() : QStringLiteral("unknown time zone ") + quoted(value);
    }
    return zel::system::LocaleName::find(value) ? QString() : QStringLiteral("unknown locale ") + quoted(value);
}

QStringList Assignments::proposals(const QString& word)
{
    const QString key = word.section(QLatin1Char('='), 0, 0);
    QStringList words = key == word ? keys() : valuesOf(key);
    for (QString& proposal : words) {
        proposal = key == word ? proposal + QLatin1Char('=') : key + QLatin1Char('=') + proposal;
    }
    return words;
}

QMap<QString, QString> Assignments::parse(const QStringList& words)
{
    QMap<QString, QString> values;
    for (const QString& word : words) {
        const auto sign = word.indexOf(QLatin1Char('='));
        if (sign < 0) {
            throw Failure::usage(quoted(word) + QStringLiteral(" is not of the form KEY=VALUE"));
        }
        const QString key = word.left(sign);
        requireKey(key);
        if (values.contains(key)) {
            throw Failure::usage(key + QStringLiteral(" was given more than once"));
        }
        values[key] = word.mid(sign + 1);
        const QString reason = error(key, values[key]);
        if (!reason.isEmpty()) {
            throw Failure(reason);
        }
    }
    return values;
}

} // namespace zel::tool
