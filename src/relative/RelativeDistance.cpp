// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "relative/RelativeDistance.h"

#include "bridge/DateTime.h"
#include <QtCore/QCalendar>

namespace zel::utility::i18n {

namespace {

constexpr qint64 firstGregorianDay = 2'299'161; // 15 October 1582
constexpr int firstGregorianYear = 1583;        // the first to begin in the Gregorian calendar

const QCalendar& julian()
{
    static const QCalendar calendar(QCalendar::System::Julian);
    return calendar;
}

} // namespace

RelativeDistance::RelativeDistance(qint64 anchor, qint64 moment)
    : m_elapsed(moment - anchor),
      m_days(day(moment) - day(anchor)),
      m_years(m_days == 0 ? 0 : year(day(moment)) - year(day(anchor)))
{
}

qint64 RelativeDistance::reading(const QDateTime& dateTime)
{
    return static_cast<qint64>(DateTime::wallClock(dateTime));
}

bool RelativeDistance::covers(qint64 reading)
{
    static const qint64 first = firstDay(1) * msPerDay;
    static const qint64 end = firstDay(10'000) * msPerDay;
    return reading >= first && reading < end;
}

qint64 RelativeDistance::day(qint64 reading)
{
    return reading / msPerDay - (reading % msPerDay < 0 ? 1 : 0);
}

int RelativeDistance::year(qint64 day)
{
    const QDate date = QDate::fromJulianDay(day + DateTime::julianDayOf1970);
    return date.toJulianDay() < firstGregorianDay ? date.year(julian()) : date.year();
}

qint64 RelativeDistance::firstDay(int year)
{
    const QDate date = year < firstGregorianYear ? QDate(year, 1, 1, julian()) : QDate(year, 1, 1);
    return date.toJulianDay() - DateTime::julianDayOf1970;
}

qint64 RelativeDistance::difference(RelativeDateElement::Type element) const
{
    switch (element) {
    case RelativeDateElement::Minutes:
        return m_elapsed / msPerMinute;
    case RelativeDateElement::Hours:
        return m_elapsed / msPerHour;
    default:
        return m_elapsed / msPerDay;
    }
}

} // namespace zel::utility::i18n
