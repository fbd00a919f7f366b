// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "patterns/AmPmField.h"

#include "bridge/Diagnostic.h"
#include "bridge/PatternText.h"
#include <QtCore/QLatin1Char>
#include <QtCore/QLatin1String>

namespace zel::utility::i18n {

namespace {

constexpr QLatin1String amPm("AP");

// The last position of a text outside quotes, or -1.
int findInFormat(const QString& format, const QString& text)
{
    return PatternText(format).lastIndexOf(text);
}

QChar charAt(const QString& text, int position)
{
    return position >= 0 && position < text.size() ? text.at(position) : QChar();
}

// The position after a quoted unit that follows a field directly or after a space, and after the unit's full stop.
int endOfUnit(const QString& format, int fieldEnd)
{
    const int start = charAt(format, fieldEnd).isSpace() ? fieldEnd + 1 : fieldEnd;
    const int end = PatternText(format).endOfQuoted(start);
    if (end <= start + 2) { // no quotes, or a literal apostrophe
        return fieldEnd;
    }
    return charAt(format, end) == QLatin1Char('.') ? end + 1 : end;
}

// The position after the last time field and its unit, or -1.
int endOfTime(const QString& format)
{
    for (const QChar field : {QLatin1Char('s'), QLatin1Char('m'), QLatin1Char('h')}) {
        const int position = findInFormat(format, field);
        if (position != -1) {
            return endOfUnit(format, position + 1);
        }
    }
    return -1;
}

// An opening bracket or a comma before the zone belongs to the zone.
void addBeforeZone(QString& format, int zone)
{
    const int last = charAt(format, zone - 1).isSpace() ? zone - 2 : zone - 1;
    const bool bracket = charAt(format, zone - 1).category() == QChar::Punctuation_Open;
    if (charAt(format, last) == QLatin1Char(',')) {
        format.insert(last, QStringLiteral(" AP"));
    } else if (bracket && !charAt(format, zone - 2).isSpace()) {
        format.insert(zone - 1, QStringLiteral(" AP"));
    } else {
        format.insert(bracket ? zone - 1 : zone, QStringLiteral("AP "));
    }
}

void addAfterTime(QString& format)
{
    const int zone = findInFormat(format, QStringLiteral("t"));
    if (zone != -1) {
        addBeforeZone(format, zone);
        return;
    }
    const int end = endOfTime(format);
    format.insert(end == -1 ? static_cast<int>(format.size()) : end, QStringLiteral(" AP"));
}

bool addBeforeHour(QString& format, const QString& field)
{
    const int twoDigits = findInFormat(format, QStringLiteral("hh"));
    const int hour = twoDigits != -1 ? twoDigits : findInFormat(format, QStringLiteral("h"));
    if (hour != -1) {
        format.insert(hour, field);
    }
    return hour != -1;
}

// The field and separator of languages that write it before the hour; empty for all others.
QString fieldBeforeHour(QLocale::Language language)
{
    switch (language) {
    case QLocale::Japanese:
    case QLocale::Chinese:
    case QLocale::Cantonese:
        return amPm;
    case QLocale::Turkish:
    case QLocale::Hungarian:
    case QLocale::Burmese:
    case QLocale::Sinhala:
    case QLocale::Tamil:
    case QLocale::Ewe:
        return QStringLiteral("AP ");
    default:
        return {};
    }
}

// The AM/PM field with the separator of the language.
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

} // namespace

bool AmPmField::isIn(const QString& pattern)
{
    return findInFormat(pattern, amPm) != -1;
}

void AmPmField::add(QLocale::Language language, QString& pattern)
{
    const QString first = fieldBeforeHour(language);
    // Without an hour, a Japanese pattern stays as it is; in all others the field goes to the end.
    if ((first.isEmpty() || !addBeforeHour(pattern, first)) && language != QLocale::Japanese) {
        addAfterTime(pattern);
    }
    const int twoDigits = findInFormat(pattern, QStringLiteral("hh"));
    if (twoDigits != -1) {
        pattern.remove(twoDigits, 1);
    }
}

void AmPmField::remove(QLocale::Language language, QString& pattern)
{
    const QString separated = separatedAMPM(language);
    const int position = findInFormat(pattern, separated);
    if (position != -1) {
        pattern.remove(position, static_cast<int>(separated.size()));
    } else {
        Diagnostic::write(QtWarningMsg, "zel::utility::i18n::Formatting::replaceWithSystemClockFormat() has "
                                        "encountered an unsupported time format!");
        pattern.remove(findInFormat(pattern, amPm), amPm.size());
        pattern = pattern.simplified();
        const int comma = findInFormat(pattern, QStringLiteral(" ,"));
        if (comma != -1) {
            pattern.remove(comma, 1);
        }
    }
    if (findInFormat(pattern, QStringLiteral("hh")) == -1) {
        const int hour = findInFormat(pattern, QStringLiteral("h"));
        if (hour != -1) {
            pattern.insert(hour, QLatin1Char('h'));
        }
    }
}

void AmPmField::fixCase(const QLocale& locale, QString& pattern)
{
    const int position = findInFormat(pattern, amPm);
    if (position != -1 && locale.amText() != locale.amText().toUpper()) {
        pattern.replace(position, amPm.size(), QStringLiteral("ap"));
    }
}

} // namespace zel::utility::i18n
