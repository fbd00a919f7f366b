// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "relative/RelativeDate.h"

#include "bridge/DateTime.h"
#include "bridge/Diagnostic.h"
#include "bridge/IcuCall.h"
#include "bridge/String.h"
#include <memory>
#include <QtCore/QLatin1Char>
#include <unicode/calendar.h>
#include <unicode/errorcode.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

namespace zel::utility::i18n {

namespace {

// The properties of an element.
struct Element
{
    RelativeDateElement::Type type;
    const char* name;
    const char* characters;
    bool absolute;
    UCalendarDateFields offsetField;
    UCalendarDateFields largerField;
    UCalendarDateFields countedField;
    const char* pastTable;
    const char* futureTable;
};

constexpr Element elements[] = {
    {RelativeDateElement::Minutes, "Minutes", "m", false, UCAL_MINUTE, UCAL_HOUR, UCAL_MINUTE, "minute-past",
     "minute-future"},
    {RelativeDateElement::Hours, "Hours", "hHkK", false, UCAL_HOUR_OF_DAY, UCAL_DATE, UCAL_HOUR, "hour-past",
     "hour-future"},
    {RelativeDateElement::NamedDays, "Named Days", "eEc", true, UCAL_DAY_OF_YEAR, UCAL_MONTH, UCAL_DATE, nullptr,
     nullptr},
    {RelativeDateElement::Years, "Years", "yY", false, UCAL_YEAR, UCAL_ERA, UCAL_YEAR, "year-past", "year-future"},
};

constexpr const char* invalidType = "called with invalid element type:";

// The element of a type; null, with a message, if there is none.
const Element* findElement(RelativeDateElement::Type type, const char* signature, const char* error = invalidType)
{
    for (const Element& element : elements) {
        if (element.type == type) {
            return &element;
        }
    }
    Diagnostic::write(QtCriticalMsg, signature, error, static_cast<int>(type));
    return nullptr;
}

std::unique_ptr<icu::TimeZone> cloneGMT(const char* signature)
{
    const icu::TimeZone* const gmt = icu::TimeZone::getGMT();
    std::unique_ptr<icu::TimeZone> zone(gmt == nullptr ? nullptr : gmt->clone());
    if (!zone) {
        Diagnostic::write(QtWarningMsg, gmt == nullptr ? "icu::TimeZone::getGMT() returned a NULL pointer!"
                                                       : "icu::TimeZone::clone() returned a NULL pointer!");
        Diagnostic::write(QtDebugMsg, signature, "failed to set up a time zone");
    }
    return zone;
}

// Counts are Gregorian like every text of the library; in other calendars the year turns on other days.
icu::Locale gregorianDefaultLocale()
{
    icu::Locale locale = icu::Locale::getDefault();
    icu::ErrorCode status;
    locale.setKeywordValue("calendar", "gregorian", status);
    return locale;
}

// Adopts the result of a calendar factory; null, with messages, if it is not a usable calendar.
std::unique_ptr<icu::Calendar> adoptCalendar(icu::Calendar* created, const icu::ErrorCode& status,
                                             const char* signature)
{
    std::unique_ptr<icu::Calendar> calendar(created);
    if (status.isSuccess() && calendar) {
        return calendar;
    }
    const IcuCall call = {"icu::Calendar::createInstance( icu::TimeZone *, UErrorCode & )", IcuCall::Joined,
                          QtWarningMsg, status.isFailure() ? QtWarningMsg : QtDebugMsg};
    call.report(status.get(), signature, "failed to instantiate a calendar");
    return nullptr;
}

bool setTime(icu::Calendar& calendar, const QDateTime& dateTime, icu::ErrorCode& status, const char* signature)
{
    calendar.setTime(DateTime::wallClock(dateTime), status);
    if (status.isFailure()) {
        IcuCall{"icu::Calendar::setTime( UDate, UErrorCode & )"}.report(status, signature,
                                                                        "failed to set up a calendar");
        return false;
    }
    return true;
}

// Removes the unquoted letters from a pattern and returns the position of the first.
int removeLetters(QString& pattern, const QString& letters)
{
    int position = -1;
    for (const QChar letter : letters) {
        for (int index = String::indexOfInFormat(pattern, letter, 0, Qt::CaseSensitive); index != -1;
             index = String::indexOfInFormat(pattern, letter, 0, Qt::CaseSensitive)) {
            pattern.remove(index, 1);
            if (position == -1) {
                position = index;
            } else if (position > index) {
                --position;
            }
        }
    }
    return position;
}

} // namespace

QString RelativeDate::elementName(RelativeDateElement::Type type)
{
    const Element* const element = findElement(type, "static QString zel::utility::i18n::RelativeDate::elementName("
                                                     "zel::utility::i18n::RelativeDateElement::Type)");
    return element == nullptr ? QString() : QString::fromLatin1(element->name);
}

bool RelativeDate::offsetIsAbsolute(RelativeDateElement::Type type)
{
    const Element* const element = findElement(type, "static bool zel::utility::i18n::RelativeDate::offsetIsAbsolute("
                                                     "zel::utility::i18n::RelativeDateElement::Type)");
    return element != nullptr && element->absolute;
}

QString RelativeDate::characters(RelativeDateElement::Type type)
{
    const Element* const element = findElement(type,
                                               "static QString zel::utility::i18n::RelativeDate::characters("
                                               "zel::utility::i18n::RelativeDateElement::Type)",
                                               "called with invalid element type: ");
    return element == nullptr ? QString() : QString::fromLatin1(element->characters);
}

QString RelativeDate::apply(const QString& format, RelativeDateElement::Type type, const QString& elementString)
{
    constexpr const char* signature = "static QString zel::utility::i18n::RelativeDate::apply(const QString&, "
                                      "zel::utility::i18n::RelativeDateElement::Type, const QString&)";
    const QString letters = characters(type);
    if (letters.isEmpty()) {
        Diagnostic::write(QtCriticalMsg, signature, invalidType, static_cast<int>(type));
        return format;
    }
    QString text = format;
    const int position = removeLetters(text, letters);
    if (position == -1) {
        Diagnostic::write(QtCriticalMsg, signature, "called with format", format,
                          "which does not contain the requested element type",
                          QStringLiteral("0x") + QString::number(static_cast<int>(type), 16));
        return format;
    }
    if (elementString.isEmpty()) {
        Diagnostic::write(QtWarningMsg, signature, "called with empty element string for", elementName(type));
        return text;
    }
    constexpr QLatin1Char apostrophe('\'');
    return text.insert(position, apostrophe + elementString + apostrophe);
}

int RelativeDate::offset(const QDateTime& anchorTime, const QDateTime& dateTime, RelativeDateElement::Type type)
{
    constexpr const char* signature = "static int zel::utility::i18n::RelativeDate::offset(const QDateTime&, const "
                                      "QDateTime&, zel::utility::i18n::RelativeDateElement::Type)";
    const auto zone = cloneGMT(signature);
    if (!zone) {
        return 0;
    }
    icu::ErrorCode status;
    const icu::Locale locale = gregorianDefaultLocale();
    const auto anchor = adoptCalendar(icu::Calendar::createInstance(*zone, locale, status), status, signature);
    if (!anchor || !setTime(*anchor, anchorTime, status, signature)) {
        return 0;
    }
    const auto moment = adoptCalendar(icu::Calendar::createInstance(*zone, locale, status), status, signature);
    if (!moment || !setTime(*moment, dateTime, status, signature)) {
        return 0;
    }
    const Element* const element = findElement(type, signature);
    if (element == nullptr) {
        return 0;
    }
    return moment->get(element->offsetField, status) - anchor->get(element->offsetField, status);
}

int RelativeDate::difference(const QDateTime& anchorTime, const QDateTime& dateTime, RelativeDateElement::Type type,
                             bool remainderOnly)
{
    constexpr const char* signature = "static int zel::utility::i18n::RelativeDate::difference(const QDateTime&, const "
                                      "QDateTime&, zel::utility::i18n::RelativeDateElement::Type, bool)";
    auto zone = cloneGMT(signature);
    if (!zone) {
        return 0;
    }
    icu::ErrorCode status;
    const auto calendar = adoptCalendar(icu::Calendar::createInstance(zone.release(), gregorianDefaultLocale(), status),
                                        status, signature);
    if (!calendar || !setTime(*calendar, anchorTime, status, signature)) {
        return 0;
    }
    const Element* const element = findElement(type, signature);
    if (element == nullptr) {
        return 0;
    }
    const UDate target = DateTime::wallClock(dateTime);
    if (remainderOnly) {
        // Advances the calendar by the whole larger units.
        calendar->fieldDifference(target, element->largerField, status);
    }
    return calendar->fieldDifference(target, element->countedField, status);
}

bool RelativeDate::resourceIsPlural(RelativeDateElement::Type type)
{
    const Element* const element = findElement(type, "static bool zel::utility::i18n::RelativeDate::resourceIsPlural("
                                                     "zel::utility::i18n::RelativeDateElement::Type)");
    return element != nullptr && element->pastTable != nullptr;
}

QStringList RelativeDate::resourcePath(RelativeDateElement::Type type, bool past)
{
    const Element* const element =
        findElement(type, "static QStringList zel::utility::i18n::RelativeDate::resourcePath("
                          "zel::utility::i18n::RelativeDateElement::Type, bool)");
    if (element == nullptr) {
        return {};
    }
    if (element->pastTable == nullptr) {
        return {QStringLiteral("calendar"), QStringLiteral("gregorian"), QStringLiteral("fields"),
                QStringLiteral("day"), QStringLiteral("relative")};
    }
    return {QStringLiteral("units"), QString::fromLatin1(past ? element->pastTable : element->futureTable)};
}

} // namespace zel::utility::i18n
