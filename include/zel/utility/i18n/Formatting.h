// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_FORMATTING_H
#define ZEL_UTILITY_I18N_FORMATTING_H

#include <QtCore/QLocale>
#include <QtCore/QString>
#include <zel/utility/i18n/DateFormat.h>
#include <zel/utility/i18n/Global.h>

/**
 * @file
 * The date and time patterns of a locale in Qt syntax, and percentages.
 *
 * Patterns are meant for QLocale::toString() and similar functions. They come from ICU's data for the locale in the
 * Gregorian calendar. The **fallback** is QLocale's own format: where ICU's pattern has a field that Qt lacks (an era,
 * for example), Short and Medium return Qt's short format, other lengths Qt's long one. QLocale::c() means English.
 *
 * Limitations:
 *
 * - The fallback of a date-time does not follow the clock of the device: Thai in Long and Full, Lao in Full.
 * - Qt has no hour field from 0 to 11. Under a 12-hour clock, 12:30 p.m. in Japanese is 午後12:30 with a Qt pattern,
 *   and 午後0:30 with CustomDateFormatter.
 * - Qt has one form of a weekday's name, ICU has two. In Finnish and Inari Sami, Full shows the inflected one:
 *   "maanantaina 3. syyskuuta 2012", where ICU has "maanantai".
 * - Texts are capitalized as in the middle of a sentence. Where a capital first letter is expected, for example in a
 *   list, the application has to add it.
 *
 * @code
 * #include <QtCore/QDate>
 * #include <zel/utility/i18n/Formatting.h>
 *
 * using namespace zel::utility::i18n;
 * const QLocale german("de_DE");
 * const QString pattern = dateFormat(german, DateFormat::Long);        // d. MMMM yyyy
 * const QString text = german.toString(QDate::currentDate(), pattern); // 3. September 2012
 * @endcode
 */

namespace zel::utility::i18n {

/**
 * Returns the date pattern of a locale in Qt syntax. Thread-safe.
 *
 * @param locale the locale of the pattern
 * @param type the length; an unknown value means Medium
 * @return the pattern, never empty, for example "dd.MM.yy" for German and Short; the fallback where Qt cannot express
 * ICU's pattern
 */
ZEL_UTILITY_I18N_EXPORT QString dateFormat(const QLocale& locale, DateFormat::Type type);

/**
 * Returns the date pattern of the user's current region locale in Qt syntax. Thread-safe.
 *
 * @param type the length; an unknown value means Medium
 * @return the pattern, never empty; the fallback where Qt cannot express ICU's pattern
 */
ZEL_UTILITY_I18N_EXPORT QString dateFormat(DateFormat::Type type);

/**
 * Returns the time pattern of a locale in Qt syntax, for the current clock of the device. Thread-safe.
 *
 * The pattern has an AM/PM field ("AP", or "ap" if the locale writes it in lower case) exactly if the device has a
 * 12-hour clock, which is also the default where no clock is set.
 *
 * @param locale the locale of the pattern
 * @param type the length; an unknown value means Medium
 * @return the pattern, never empty, for example "hh:mm" or "h:mm AP" for English and Short; the fallback, which
 * ignores the clock of the device, where Qt cannot express ICU's pattern
 */
ZEL_UTILITY_I18N_EXPORT QString timeFormat(const QLocale& locale, DateFormat::Type type);

/**
 * Returns the time pattern of the user's current region locale in Qt syntax, for the current clock of the device
 * (default: 12-hour). Thread-safe.
 *
 * @param type the length; an unknown value means Medium
 * @return the pattern, never empty; the fallback, which ignores the clock of the device, where Qt cannot express
 * ICU's pattern
 */
ZEL_UTILITY_I18N_EXPORT QString timeFormat(DateFormat::Type type);

/**
 * Returns the pattern of a locale for a date with a time of the same length, in Qt syntax, for the current clock of the
 * device (default: 12-hour). Thread-safe.
 *
 * @param locale the locale of the pattern
 * @param type the length; an unknown value means Medium
 * @return the pattern, never empty, for example "dd.MM.yy, hh:mm" for German, Short and a 24-hour clock; the fallback,
 * which ignores the clock of the device, where Qt cannot express ICU's pattern
 */
ZEL_UTILITY_I18N_EXPORT QString dateTimeFormat(const QLocale& locale, DateFormat::Type type);

/**
 * Returns the pattern of the user's current region locale for a date with a time of the same length, in Qt syntax, for
 * the current clock of the device (default: 12-hour). Thread-safe.
 *
 * @param type the length; an unknown value means Medium
 * @return the pattern, never empty; the fallback, which ignores the clock of the device, where Qt cannot express
 * ICU's pattern
 */
ZEL_UTILITY_I18N_EXPORT QString dateTimeFormat(DateFormat::Type type);

/**
 * Formats a number as a percentage, with the digits, sign and grouping of a locale. Thread-safe.
 *
 * @param locale the locale of the text
 * @param value the number; 1.0 is 100 %. NaN and infinity are written as in the locale.
 * @param maximumFractionDigits maximum fraction digits, rounded half to even; negative: all
 * @param minimumFractionDigits minimum fraction digits; negative: none. The maximum wins where it is smaller.
 * @return the text, for example "25.6%" for 0.256 in English with 1 and 0 digits; a null string, without a message,
 * if ICU has no percent format
 */
ZEL_UTILITY_I18N_EXPORT QString toPercentageString(const QLocale& locale, double value, int maximumFractionDigits,
                                                   int minimumFractionDigits);

/**
 * Formats a number as a percentage, with the digits, sign and grouping of the user's current region locale.
 * Thread-safe.
 *
 * @param value the number; 1.0 is 100 %. NaN and infinity are written as in the locale.
 * @param maximumFractionDigits maximum fraction digits, rounded half to even; negative: all
 * @param minimumFractionDigits minimum fraction digits; negative: none. The maximum wins where it is smaller.
 * @return the text; a null string, without a message, if ICU has no percent format
 */
ZEL_UTILITY_I18N_EXPORT QString toPercentageString(double value, int maximumFractionDigits, int minimumFractionDigits);

} // namespace zel::utility::i18n

#endif
