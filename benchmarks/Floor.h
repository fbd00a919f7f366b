// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_BENCHMARKS_FLOOR_H
#define ZEL_BENCHMARKS_FLOOR_H

#include <memory>
#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QLocale>
#include <QtCore/QString>
#include <unicode/datefmt.h>
#include <unicode/smpdtfmt.h>
#include <unicode/ucal.h>

/**
 * The ICU and Qt calls that the entries of the library need, and nothing else: no objects of the library, no messages,
 * no checks.
 */
namespace floors {

/** One stat() of the file of a setting. */
void lookAt(const char* file);

/** ICU's pattern for two styles; no clock is applied, nothing is translated. */
QString pattern(const QLocale& locale, icu::DateFormat::EStyle date, icu::DateFormat::EStyle time);

QString percentage(const QLocale& locale, double value, int maximumFractionDigits, int minimumFractionDigits);

/** The best pattern of a locale for a skeleton. */
QString bestPattern(const QLocale& locale, const QString& skeleton);

/** A formatter for a skeleton, ready for format(). */
std::unique_ptr<icu::SimpleDateFormat> formatter(const QLocale& locale, const QString& skeleton);

/** The date and time that a moment shows. */
QString format(icu::SimpleDateFormat& format, const QDateTime& moment);

/** The same with a formatter that has GMT as its zone already. */
QString formatKept(const icu::SimpleDateFormat& format, const QDateTime& moment);

/** The moment in a time zone. */
QString formatInZone(icu::SimpleDateFormat& format, const QDateTime& moment, const QString& zone);

/** One comparison of a moment with an anchor, by the values of a calendar field or by whole units between them. */
struct Distance
{
    UCalendarDateFields field;
    bool elapsed;
};

int measure(const Distance& distance, const QDateTime& anchor, const QDateTime& moment);

/** The units that remain beyond the whole larger ones. */
int remainder(UCalendarDateFields larger, UCalendarDateFields counted, const QDateTime& anchor,
              const QDateTime& moment);

/** A phrase such as "5 minutes ago" from a pair of tables, both of which must exist. */
QString countedPhrase(const QLocale& locale, const char* pastTable, const char* futureTable, int count);

/** "yesterday", "today" or "tomorrow". */
QString dayPhrase(const QLocale& locale, int count);

/** Formats a moment with a pattern, by a formatter created for it. */
QString write(const QString& pattern, const QDateTime& moment, const QLocale& locale);

} // namespace floors

#endif
