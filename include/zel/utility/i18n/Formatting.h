#ifndef ZEL_UTILITY_I18N_FORMATTING_H
#define ZEL_UTILITY_I18N_FORMATTING_H

#include <QtCore/QLocale>
#include <QtCore/QString>
#include <zel/utility/i18n/DateFormat.h>
#include <zel/utility/i18n/Global.h>

/**
 * @file
 * The locale's date and time patterns in Qt syntax, and percentages.
 *
 * A pattern is meant for QLocale::toString(), QDate::toString() and their relatives. It comes from ICU's data for the
 * locale in the Gregorian calendar. Where ICU's pattern holds a field that Qt cannot express (an era, for example),
 * QLocale's own format of the nearest length answers instead: the short one for Short and Medium, otherwise the long
 * one. A pattern is never empty.
 *
 * The overloads without a locale use the user's region locale, asked afresh on every call. All functions are reentrant
 * and may be called on any thread. Times follow the clock setting of the device at the moment of the call.
 *
 * @code
 * #include <zel/utility/i18n/Formatting.h>
 *
 * using namespace zel::utility::i18n;
 * const QLocale german("de_DE");
 * const QString text = german.toString(QDate::currentDate(), dateFormat(german, DateFormat::Long)); // 16. Mai 2012
 * @endcode
 */

namespace zel::utility::i18n {

/**
 * The date pattern of a locale, in Qt syntax.
 *
 * @param locale the locale whose pattern is asked for
 * @param type the length; any value but the four of DateFormat::Type asks for the medium length
 * @return for example "dd.MM.yy" for German and DateFormat::Short
 */
ZEL_UTILITY_I18N_EXPORT QString dateFormat(const QLocale& locale, DateFormat::Type type);

/** The date pattern of the user's region locale, in Qt syntax. */
ZEL_UTILITY_I18N_EXPORT QString dateFormat(DateFormat::Type type);

/**
 * The time pattern of a locale under the clock of the device, in Qt syntax.
 *
 * The pattern holds an AM/PM field ("AP", or "ap" where the locale does not write it in capitals) exactly when the
 * device shows a 12-hour clock. Where Qt's own format has to answer, it is returned as Qt gives it, whatever the clock.
 *
 * @param locale the locale whose pattern is asked for
 * @param type the length; any value but the four of DateFormat::Type asks for the medium length
 * @return for example "hh:mm" or "h:mm AP" for English and DateFormat::Short
 */
ZEL_UTILITY_I18N_EXPORT QString timeFormat(const QLocale& locale, DateFormat::Type type);

/** The time pattern of the user's region locale under the clock of the device, in Qt syntax. */
ZEL_UTILITY_I18N_EXPORT QString timeFormat(DateFormat::Type type);

/**
 * The pattern of a locale for a date with a time, both of the same length, under the clock of the device, in Qt syntax.
 *
 * The clock is followed as in timeFormat().
 *
 * @param locale the locale whose pattern is asked for
 * @param type the length; any value but the four of DateFormat::Type asks for the medium length
 * @return for example "dd.MM.yy, hh:mm" for German and DateFormat::Short on a device with a 24-hour clock
 */
ZEL_UTILITY_I18N_EXPORT QString dateTimeFormat(const QLocale& locale, DateFormat::Type type);

/** The pattern of the user's region locale for a date with a time, under the clock of the device, in Qt syntax. */
ZEL_UTILITY_I18N_EXPORT QString dateTimeFormat(DateFormat::Type type);

/**
 * A number as a percentage, in the digits and with the sign and grouping of a locale.
 *
 * @param locale the locale to write for
 * @param value the number; 1.0 is a hundred percent
 * @param maximumFractionDigits the most digits behind the decimal point; the rest is rounded half to even
 * @param minimumFractionDigits the fewest digits behind the decimal point; the maximum wins where it is smaller
 * @return for example "25.6%" for 0.256 in English with 1 and 0 digits; a null string if ICU has no percent format
 */
ZEL_UTILITY_I18N_EXPORT QString toPercentageString(const QLocale& locale, double value, int maximumFractionDigits,
                                                   int minimumFractionDigits);

/** A number as a percentage of the user's region locale. */
ZEL_UTILITY_I18N_EXPORT QString toPercentageString(double value, int maximumFractionDigits, int minimumFractionDigits);

} // namespace zel::utility::i18n

#endif
