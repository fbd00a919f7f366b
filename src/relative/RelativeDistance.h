// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_RELATIVE_RELATIVEDISTANCE_H
#define ZEL_UTILITY_I18N_RELATIVE_RELATIVEDISTANCE_H

#include "bridge/DateTime.h"
#include "relative/RelativeDateElement.h"
#include <QtCore/QDateTime>

namespace zel::utility::i18n {

/**
 * The distance of a moment from an anchor, both by their wall-clock readings in the years 1 to 9999: the counts of
 * RelativeDate by arithmetic, without a calendar object. Days before 15 October 1582 are Julian, as in ICU.
 *
 * @code
 * const RelativeDistance distance(RelativeDistance::reading(anchor), RelativeDistance::reading(moment));
 * distance.difference(RelativeDateElement::Minutes); // -5 for "5 minutes ago"
 * @endcode
 */
class RelativeDistance
{
public:
    static constexpr qint64 msPerMinute = 60'000;
    static constexpr qint64 msPerHour = 60 * msPerMinute;
    static constexpr qint64 msPerDay = DateTime::msPerDay;

    /** Both in milliseconds from 1970-01-01 00:00 on the wall clock. */
    RelativeDistance(qint64 anchor, qint64 moment);

    /** The date and time that a moment shows, whatever its time zone. */
    static qint64 reading(const QDateTime& dateTime);

    /** Whether a reading is in the years 1 to 9999. */
    static bool covers(qint64 reading);

    /** The day of a reading, counted from 1970-01-01. */
    static qint64 day(qint64 reading);

    /** The year of a day. */
    static int year(qint64 day);

    /** The first day of a year. */
    static qint64 firstDay(int year);

    /** The difference of the calendar years. */
    int years() const { return m_years; }

    /** The difference of the calendar days. */
    qint64 days() const { return m_days; }

    /** Whole minutes, hours or days from the anchor to the moment, truncated towards zero. */
    qint64 difference(RelativeDateElement::Type element) const;

private:
    qint64 m_elapsed;
    qint64 m_days;
    int m_years;
};

} // namespace zel::utility::i18n

#endif
