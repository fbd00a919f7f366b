#include "device/Assignments.h"

#include "terminal/Failure.h"
#include <memory>
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

} // namespace

void Assignments::requireKey(const QString& key)
{
    if (!keys().contains(key)) {
        throw Failure::usage(QStringLiteral("unknown setting ") + quoted(key) + QLatin1String("; settings: ") +
                             keys().join(QLatin1String(", ")));
    }
}

QString Assignments::fault(const QString& key, const QString& value)
{
    if (key == hourFormat()) {
        const bool good = value == QLatin1String("12") || value == QLatin1String("24");
        return good ? QString() : key + QLatin1String(" is 12 or 24, not ") + quoted(value);
    }
    if (key == timeZone()) {
        return isTimeZone(value) ? QString() : QStringLiteral("unknown time zone ") + quoted(value);
    }
    return zel::system::LocaleName::find(value) ? QString() : QStringLiteral("unknown locale ") + quoted(value);
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
        const QString wrong = fault(key, values[key]);
        if (!wrong.isEmpty()) {
            throw Failure(wrong);
        }
    }
    return values;
}

} // namespace zel::tool
