// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "Floor.h"

#include <string>
#include <sys/stat.h>
#include <unicode/calendar.h>
#include <unicode/dtptngen.h>
#include <unicode/fmtable.h>
#include <unicode/numfmt.h>
#include <unicode/plurrule.h>
#include <unicode/resbund.h>
#include <unicode/timezone.h>

namespace floors {

namespace {

icu::Locale toICU(const QLocale& locale)
{
    // The BCP 47 name omits a likely territory.
    QByteArray name = locale.bcp47Name().toUtf8();
    const QByteArray territory = locale.name().section(QLatin1Char('_'), -1).toUtf8();
    if (!name.endsWith(territory)) {
        name += '-' + territory;
    }
    icu::Locale icuLocale = icu::Locale::createFromName(name.constData());
    UErrorCode status = U_ZERO_ERROR;
    icuLocale.setKeywordValue("calendar", "gregorian", status);
    return icuLocale;
}

icu::Locale gregorianDefault()
{
    icu::Locale locale = icu::Locale::getDefault();
    UErrorCode status = U_ZERO_ERROR;
    locale.setKeywordValue("calendar", "gregorian", status);
    return locale;
}

icu::UnicodeString toICU(const QString& text)
{
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<int32_t>(text.size())};
}

QString toQt(const icu::UnicodeString& text)
{
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

UDate instant(const QDateTime& moment)
{
    return static_cast<UDate>(moment.toMSecsSinceEpoch());
}

UDate wallClock(const QDateTime& moment)
{
    constexpr UDate day = 86'400'000;
    return day * static_cast<UDate>(QDate(1970, 1, 1).daysTo(moment.date())) + moment.time().msecsSinceStartOfDay();
}

icu::ResourceBundle open(const icu::Locale& locale, std::initializer_list<const char*> path, UErrorCode& status)
{
    icu::ResourceBundle bundle(nullptr, locale, status);
    for (const char* const key : path) {
        bundle = bundle.get(key, status);
    }
    return bundle;
}

// The objects for the counted phrases of one table.
class Phrases
{
public:
    Phrases(const QLocale& locale, const char* table)
        : m_locale(toICU(locale)),
          m_rules(icu::PluralRules::forLocale(m_locale, m_status)),
          m_rootFormat(icu::NumberFormat::createInstance(icu::Locale::getRoot(), m_status)),
          m_format(icu::NumberFormat::createInstance(m_locale, m_status)),
          m_table(open(m_locale, {"units", table}, m_status))
    {
    }

    QString phrase(int count)
    {
        std::string keyword;
        m_rules->select(static_cast<int32_t>(count)).toUTF8String(keyword);
        icu::UnicodeString phrase = m_table.getStringEx(keyword.c_str(), m_status);
        icu::UnicodeString number;
        m_format->format(static_cast<int32_t>(count), number);
        return toQt(phrase.findAndReplace(u"{0}", number));
    }

private:
    UErrorCode m_status = U_ZERO_ERROR;
    icu::Locale m_locale;
    std::unique_ptr<icu::PluralRules> m_rules;
    std::unique_ptr<icu::NumberFormat> m_rootFormat;
    std::unique_ptr<icu::NumberFormat> m_format;
    icu::ResourceBundle m_table;
};

} // namespace

void lookAt(const char* file)
{
    struct stat status = {};
    ::stat(file, &status);
}

QString pattern(const QLocale& locale, icu::DateFormat::EStyle date, icu::DateFormat::EStyle time)
{
    const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createDateTimeInstance(date, time, toICU(locale)));
    icu::UnicodeString pattern;
    static_cast<const icu::SimpleDateFormat&>(*format).toPattern(pattern);
    return toQt(pattern);
}

QString percentage(const QLocale& locale, double value, int maximumFractionDigits, int minimumFractionDigits)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::NumberFormat> format(icu::NumberFormat::createPercentInstance(toICU(locale), status));
    format->setMinimumFractionDigits(minimumFractionDigits);
    format->setMaximumFractionDigits(maximumFractionDigits);
    icu::UnicodeString text;
    format->format(value, text);
    std::string utf8;
    text.toUTF8String(utf8);
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

QString bestPattern(const QLocale& locale, const QString& skeleton)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(toICU(locale), status));
    return toQt(generator->getBestPattern(toICU(skeleton), status));
}

std::unique_ptr<icu::SimpleDateFormat> formatter(const QLocale& locale, const QString& skeleton)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale icuLocale = toICU(locale);
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(icuLocale, status));
    return std::make_unique<icu::SimpleDateFormat>(generator->getBestPattern(toICU(skeleton), status), icuLocale,
                                                   status);
}

QString format(icu::SimpleDateFormat& format, const QDateTime& moment)
{
    format.adoptTimeZone(icu::TimeZone::getGMT()->clone());
    return formatKept(format, moment);
}

QString formatKept(const icu::SimpleDateFormat& format, const QDateTime& moment)
{
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString text;
    format.icu::Format::format(icu::Formattable(wallClock(moment)), text, status);
    return toQt(text);
}

QString formatInZone(icu::SimpleDateFormat& format, const QDateTime& moment, const QString& zone)
{
    UErrorCode status = U_ZERO_ERROR;
    format.adoptTimeZone(icu::TimeZone::createTimeZone(toICU(zone)));
    icu::UnicodeString text;
    format.icu::Format::format(icu::Formattable(instant(moment)), text, status);
    return toQt(text);
}

int measure(const Distance& distance, const QDateTime& anchor, const QDateTime& moment)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::getGMT()->clone());
    const icu::Locale locale = gregorianDefault();
    const std::unique_ptr<icu::Calendar> from(icu::Calendar::createInstance(*zone, locale, status));
    from->setTime(wallClock(anchor), status);
    if (distance.elapsed) {
        return from->fieldDifference(wallClock(moment), distance.field, status);
    }
    const std::unique_ptr<icu::Calendar> to(icu::Calendar::createInstance(*zone, locale, status));
    to->setTime(wallClock(moment), status);
    return to->get(distance.field, status) - from->get(distance.field, status);
}

int remainder(UCalendarDateFields larger, UCalendarDateFields counted, const QDateTime& anchor, const QDateTime& moment)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(icu::TimeZone::getGMT()->clone(), gregorianDefault(), status));
    calendar->setTime(wallClock(anchor), status);
    const UDate target = wallClock(moment);
    calendar->fieldDifference(target, larger, status);
    return calendar->fieldDifference(target, counted, status);
}

QString countedPhrase(const QLocale& locale, const char* pastTable, const char* futureTable, int count)
{
    Phrases past(locale, pastTable);
    Phrases future(locale, futureTable);
    return count < 0 ? past.phrase(-count) : future.phrase(count);
}

QString dayPhrase(const QLocale& locale, int count)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::ResourceBundle table =
        open(toICU(locale), {"calendar", "gregorian", "fields", "day", "relative"}, status);
    const QList<QString> phrases = {toQt(table.getStringEx("-1", status)), toQt(table.getStringEx("0", status)),
                                    toQt(table.getStringEx("1", status))};
    return phrases[count + 1];
}

QString write(const QString& pattern, const QDateTime& moment, const QLocale& locale)
{
    UErrorCode status = U_ZERO_ERROR;
    icu::SimpleDateFormat written(toICU(pattern), toICU(locale), status);
    return format(written, moment);
}

} // namespace floors
