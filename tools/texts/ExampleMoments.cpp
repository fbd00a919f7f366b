// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "texts/ExampleMoments.h"

#include <QtCore/QStringList>
#include <zel/utility/i18n/RelativeDateFormat.h>

namespace zel::tool {

namespace {

namespace RelativeDateFormat = zel::utility::i18n::RelativeDateFormat;

enum class Unit { Year, Day, Hour, Minute };

struct Distance
{
    Unit unit;
    int count;
};

// From far to near.
QList<Distance> distances(int type)
{
    QList<Distance> distances = {{Unit::Year, 1}, {Unit::Day, 4}, {Unit::Day, 2}, {Unit::Day, 1}};
    if (type == RelativeDateFormat::TimeCritical) {
        distances += {{Unit::Hour, 3}, {Unit::Minute, 5}};
    }
    return distances;
}

QString name(const Distance& distance)
{
    static const QStringList units = {QStringLiteral("year"), QStringLiteral("day"), QStringLiteral("hour"),
                                      QStringLiteral("minute")};
    return QStringLiteral("%1 %2%3")
        .arg(distance.count)
        .arg(units.at(static_cast<int>(distance.unit)), QLatin1String(distance.count == 1 ? "" : "s"));
}

// By the reading of a clock, as texts count, even across a clock change.
QDateTime movedReading(const QDateTime& anchor, qint64 seconds)
{
    QDateTime reading = QDateTime::fromMSecsSinceEpoch(0).toUTC();
    reading.setDate(anchor.date());
    reading.setTime(anchor.time());
    reading = reading.addSecs(seconds);
    QDateTime moment = anchor;
    moment.setDate(reading.date());
    moment.setTime(reading.time());
    return moment.isValid() ? moment : anchor.addSecs(seconds);
}

QDateTime moved(const QDateTime& anchor, Unit unit, int count)
{
    switch (unit) {
    case Unit::Year:
        return anchor.addYears(count);
    case Unit::Day:
        return anchor.addDays(count);
    case Unit::Hour:
        return movedReading(anchor, count * qint64(3600));
    case Unit::Minute:
        break;
    }
    return movedReading(anchor, count * qint64(60));
}

// A shorter distance if the usual one leaves the anchor's day, as hours and minutes are for the same day only.
Distance fitting(const QDateTime& anchor, const Distance& distance, int sign)
{
    const bool leavesDay = moved(anchor, distance.unit, sign * distance.count).date() != anchor.date();
    return leavesDay && distance.unit >= Unit::Hour ? Distance{distance.unit, 1} : distance;
}

} // namespace

QList<ExampleMoment> exampleMoments(int type, const QDateTime& anchor)
{
    QList<ExampleMoment> before;
    QList<ExampleMoment> after;
    for (const Distance& usual : distances(type)) {
        const Distance earlier = fitting(anchor, usual, -1);
        const Distance later = fitting(anchor, usual, 1);
        before.append({name(earlier) + QStringLiteral(" before"), moved(anchor, earlier.unit, -earlier.count)});
        after.prepend({name(later) + QStringLiteral(" after"), moved(anchor, later.unit, later.count)});
    }
    if (type == RelativeDateFormat::NonTimeCritical) {
        before.append({QStringLiteral("the same day"), anchor});
    }
    return before + after;
}

QDateTime exampleAnchor()
{
    return {QDate(2012, 9, 3), QTime(10, 30)};
}

} // namespace zel::tool
