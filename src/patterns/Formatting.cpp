#include <zel/utility/i18n/Formatting.h>

#include "bridge/Diagnostic.h"
#include "bridge/Locale.h"
#include "bridge/String.h"
#include "patterns/FormattingPrivate.h"
#include "settings/ClockSetting.h"
#include <algorithm>
#include <array>
#include <memory>
#include <QtCore/QLatin1String>
#include <string>
#include <unicode/datefmt.h>
#include <unicode/errorcode.h>
#include <unicode/locid.h>
#include <unicode/numfmt.h>
#include <unicode/smpdtfmt.h>

namespace zel::utility::i18n {

namespace {

constexpr QLatin1String amPm("AP");

QLocale getRegionLocale()
{
    return Locale::region();
}

icu::Locale getICULocale(const QLocale& locale)
{
    icu::Locale icuLocale = Locale::named(locale);
    icu::ErrorCode status;
    icuLocale.setKeywordValue("calendar", "gregorian", status);
    if (status.isFailure()) {
        Diagnostic::write(QtWarningMsg,
                          "Error in calling icu::Locale::setKeywordValue( const char *, const char *, UErrorCode & ):",
                          status.errorName());
        Diagnostic::write(QtWarningMsg, "zel::utility::i18n::getICULocale could not set gregorian calendar on",
                          icuLocale.getName(), "locale");
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

bool isQuoted(const QString& format, int position)
{
    return std::count(format.cbegin(), format.cbegin() + position, QLatin1Char('\'')) % 2 != 0;
}

/** Qt knows AM and PM only: day periods ("at night") are shown as these. */
QString withAMPMForDayPeriods(QString pattern)
{
    for (int i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern.at(i);
        if ((c == QLatin1Char('b') || c == QLatin1Char('B')) && !isQuoted(pattern, i)) {
            pattern[i] = QLatin1Char('a');
        }
    }
    return pattern;
}

/** The clock rewriting and Qt's parsing know only the plain space beside an AM/PM field. */
QString withPlainSpacesAroundAMPM(QString pattern)
{
    const auto isField = [&pattern](int i) {
        return i >= 0 && i < pattern.size() && pattern.at(i) == QLatin1Char('a');
    };
    for (int i = 0; i < pattern.size(); ++i) {
        const ushort c = pattern.at(i).unicode();
        if ((c == 0x202F || c == 0x00A0) && (isField(i - 1) || isField(i + 1)) && !isQuoted(pattern, i)) {
            pattern[i] = QLatin1Char(' ');
        }
    }
    return pattern;
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

/** The last place of a text outside quoted text, or -1. */
int findInFormat(const QString& format, const QString& text)
{
    auto position = static_cast<int>(format.lastIndexOf(text));
    while (position != -1 && isQuoted(format, position)) {
        position = static_cast<int>(format.lastIndexOf(text, position - 1));
    }
    return position;
}

/** The same, as the place right behind that text. */
int findEndInFormat(const QString& format, const QString& text)
{
    const int position = findInFormat(format, text);
    return position == -1 ? -1 : position + static_cast<int>(text.size());
}

void fixCaseOfAMPM(const QLocale& locale, QString& format)
{
    const int position = findInFormat(format, amPm);
    if (position != -1 && locale.amText() != locale.amText().toUpper()) {
        format.replace(position, amPm.size(), QStringLiteral("ap"));
    }
}

void addJapaneseAMPM(QString& format)
{
    const int twoDigits = findInFormat(format, QStringLiteral("hh"));
    if (twoDigits != -1) {
        format.replace(twoDigits, 1, amPm);
        return;
    }
    const int hour = findInFormat(format, QStringLiteral("h"));
    if (hour != -1) {
        format.insert(hour, amPm);
    }
}

void addAMPM(QString& format)
{
    const int zone = findInFormat(format, QStringLiteral("t"));
    if (zone != -1) {
        format.insert(zone, QStringLiteral("AP "));
    } else {
        int end = -1;
        for (const QChar field : {QLatin1Char('s'), QLatin1Char('m'), QLatin1Char('h')}) {
            end = findEndInFormat(format, field);
            if (end != -1) {
                break;
            }
        }
        format.insert(end == -1 ? static_cast<int>(format.size()) : end, QStringLiteral(" AP"));
    }
    const int twoDigits = findInFormat(format, QStringLiteral("hh"));
    if (twoDigits != -1) {
        format.remove(twoDigits, 1);
    }
}

/** The AM/PM field with the separator that the language writes beside it. */
QString separatedAMPM(QLocale::Language language)
{
    switch (language) {
    case QLocale::Chinese:
        return amPm;
    case QLocale::Korean:
        return QStringLiteral("AP ");
    case QLocale::Albanian:
        return QStringLiteral(".AP");
    default:
        return QStringLiteral(" AP");
    }
}

void removeAMPM(QLocale::Language language, QString& format)
{
    const QString separated = separatedAMPM(language);
    const int position = findInFormat(format, separated);
    if (position != -1) {
        format.remove(position, static_cast<int>(separated.size()));
    } else {
        Diagnostic::write(QtWarningMsg, "zel::utility::i18n::Formatting::replaceWithSystemClockFormat() has "
                                        "encountered an unsupported time format!");
        format.remove(findInFormat(format, amPm), amPm.size());
        format = format.simplified();
    }
    if (findInFormat(format, QStringLiteral("hh")) == -1) {
        const int hour = findInFormat(format, QStringLiteral("h"));
        if (hour != -1) {
            format.insert(hour, QLatin1Char('h'));
        }
    }
}

bool replaceWithSystemClockFormat(const QLocale& locale, QString& format)
{
    const bool hasAMPM = findInFormat(format, amPm) != -1;
    switch (ClockSetting::clockFormat()) {
    case ClockFormat::Use12hourClock:
        if (hasAMPM) {
            return true;
        }
        if (locale.language() == QLocale::Japanese) {
            addJapaneseAMPM(format);
        } else {
            addAMPM(format);
        }
        return true;
    case ClockFormat::Use24hourClock:
        if (hasAMPM) {
            removeAMPM(locale.language(), format);
        }
        return true;
    default:
        return false;
    }
}

/** A translated pattern with times under the clock of the device. */
QString followClock(const QLocale& locale, QString pattern, const char* failure)
{
    if (!replaceWithSystemClockFormat(locale, pattern)) {
        Diagnostic::write(QtWarningMsg, failure);
    }
    fixCaseOfAMPM(locale, pattern);
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
    // In this order the maximum wins where the two contradict each other.
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
