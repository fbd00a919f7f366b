// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include <zel/utility/i18n/Formatting.h>

#include "bridge/Diagnostic.h"
#include "bridge/IcuCall.h"
#include "bridge/Locale.h"
#include "bridge/PatternText.h"
#include "bridge/String.h"
#include "patterns/AmPmField.h"
#include "patterns/FormattingPrivate.h"
#include "settings/ClockSetting.h"
#include <array>
#include <memory>
#include <QtCore/QLatin1Char>
#include <string>
#include <unicode/datefmt.h>
#include <unicode/errorcode.h>
#include <unicode/locid.h>
#include <unicode/numfmt.h>
#include <unicode/smpdtfmt.h>
#include <zel/icu/QtLocale.h>

namespace zel::utility::i18n {

namespace {

QLocale getRegionLocale()
{
    return Locale::region();
}

icu::Locale getICULocale(const QLocale& locale)
{
    icu::ErrorCode status;
    icu::Locale icuLocale = icudata::QtLocale::toGregorianICU(locale, status);
    if (status.isFailure()) {
        IcuCall{"icu::Locale::setKeywordValue( const char *, const char *, UErrorCode & )"}.report(
            status, "zel::utility::i18n::getICULocale could not set gregorian calendar on", icuLocale.getName(),
            "locale");
    }
    return icuLocale;
}

icu::DateFormat::EStyle icuStyle(DateFormat::Type type)
{
    static constexpr std::array<icu::DateFormat::EStyle, 4> styles = {icu::DateFormat::kShort, icu::DateFormat::kMedium,
                                                                      icu::DateFormat::kLong, icu::DateFormat::kFull};
    const auto index = static_cast<unsigned int>(type) - 1U;
    return index < styles.size() ? styles.at(index) : icu::DateFormat::kMedium;
}

QLocale::FormatType qtFormatType(DateFormat::Type type)
{
    return type == DateFormat::Short || type == DateFormat::Medium ? QLocale::ShortFormat : QLocale::LongFormat;
}

// Qt has AM and PM only; they replace day periods ("at night").
QString withAMPMForDayPeriods(const QString& pattern)
{
    const PatternText fields(pattern);
    QString result = pattern;
    for (int i = 0; i < result.size(); ++i) {
        const QChar c = result.at(i);
        if ((c == QLatin1Char('b') || c == QLatin1Char('B')) && fields.isField(i)) {
            result[i] = QLatin1Char('a');
        }
    }
    return result;
}

// The clock rewriting and Qt's parser accept only a plain space next to an AM/PM field.
QString withPlainSpacesAroundAMPM(const QString& pattern)
{
    const PatternText fields(pattern);
    const auto isAMPM = [&fields](int i) {
        return i >= 0 && i < fields.text().size() && fields.text().at(i) == QLatin1Char('a');
    };
    QString result = pattern;
    for (int i = 0; i < result.size(); ++i) {
        const ushort c = result.at(i).unicode();
        if ((c == 0x202F || c == 0x00A0) && (isAMPM(i - 1) || isAMPM(i + 1)) && !fields.isQuoted(i)) {
            result[i] = QLatin1Char(' ');
        }
    }
    return result;
}

QString getICUpattern(icu::DateFormat::EStyle dateStyle, icu::DateFormat::EStyle timeStyle, const icu::Locale& locale)
{
    const std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createDateTimeInstance(dateStyle, timeStyle, locale));
    if (!format || format->getDynamicClassID() != icu::SimpleDateFormat::getStaticClassID()) {
        return {};
    }
    icu::UnicodeString pattern;
    static_cast<const icu::SimpleDateFormat&>(*format).toPattern(pattern);
    return withPlainSpacesAroundAMPM(withAMPMForDayPeriods(String::toQt(pattern)));
}

bool replaceWithSystemClockFormat(const QLocale& locale, QString& format)
{
    const bool hasAMPM = AmPmField::isIn(format);
    switch (ClockSetting::clockFormat()) {
    case ClockFormat::Use12hourClock:
        if (!hasAMPM) {
            AmPmField::add(locale.language(), format);
        }
        return true;
    case ClockFormat::Use24hourClock:
        if (hasAMPM) {
            AmPmField::remove(locale.language(), format);
        }
        return true;
    default:
        return false;
    }
}

// Changes a translated pattern to the clock of the device.
QString followClock(const QLocale& locale, QString pattern, const char* failure)
{
    if (!replaceWithSystemClockFormat(locale, pattern)) {
        Diagnostic::write(QtWarningMsg, failure);
    }
    AmPmField::fixCase(locale, pattern);
    return pattern;
}

} // namespace

QString dateFormat(const QLocale& locale, DateFormat::Type type)
{
    const QString pattern =
        getQtDateTimePatternFromICU(getICUpattern(icuStyle(type), icu::DateFormat::kNone, getICULocale(locale)));
    return pattern.isEmpty() ? locale.dateFormat(qtFormatType(type)) : pattern;
}

QString dateFormat(DateFormat::Type type)
{
    return dateFormat(getRegionLocale(), type);
}

QString timeFormat(const QLocale& locale, DateFormat::Type type)
{
    const QString pattern =
        getQtDateTimePatternFromICU(getICUpattern(icu::DateFormat::kNone, icuStyle(type), getICULocale(locale)));
    if (pattern.isEmpty()) {
        return locale.timeFormat(qtFormatType(type));
    }
    return followClock(locale, pattern,
                       "zel::utility::i18n::Formatting::timeFormat() was unable to determine the system clock format!");
}

QString timeFormat(DateFormat::Type type)
{
    return timeFormat(getRegionLocale(), type);
}

QString dateTimeFormat(const QLocale& locale, DateFormat::Type type)
{
    const icu::DateFormat::EStyle style = icuStyle(type);
    const QString pattern = getQtDateTimePatternFromICU(getICUpattern(style, style, getICULocale(locale)));
    if (pattern.isEmpty()) {
        return locale.dateTimeFormat(qtFormatType(type));
    }
    return followClock(
        locale, pattern,
        "zel::utility::i18n::Formatting::dateTimeFormat() was unable to determine the system clock format!");
}

QString dateTimeFormat(DateFormat::Type type)
{
    return dateTimeFormat(getRegionLocale(), type);
}

QString toPercentageString(const QLocale& locale, double value, int maximumFractionDigits, int minimumFractionDigits)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::NumberFormat> format(
        icu::NumberFormat::createPercentInstance(getICULocale(locale), status));
    if (U_FAILURE(status) || !format) {
        return {};
    }
    // In this order the maximum wins where it is smaller.
    format->setMinimumFractionDigits(minimumFractionDigits);
    format->setMaximumFractionDigits(maximumFractionDigits);
    icu::UnicodeString text;
    format->format(value, text);
    std::string utf8;
    text.toUTF8String(utf8);
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

QString toPercentageString(double value, int maximumFractionDigits, int minimumFractionDigits)
{
    return toPercentageString(getRegionLocale(), value, maximumFractionDigits, minimumFractionDigits);
}

} // namespace zel::utility::i18n
