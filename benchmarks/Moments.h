// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_BENCHMARKS_MOMENTS_H
#define ZEL_BENCHMARKS_MOMENTS_H

#include <algorithm>
#include <cstdlib>
#include <QtCore/QDateTime>
#include <QtCore/QList>

/** Moments to format, the same in every run; for Qt 5 and Qt 6. */
namespace moments {

/** Whole minutes from an anchor, 1 to 59, alternately before and after it. */
inline qint64 minutesAway(int index)
{
    const qint64 minutes = 1 + index * 37LL % 59;
    return index % 2 == 0 ? -minutes : minutes;
}

inline QList<QDateTime> minutesFrom(const QDateTime& anchor, int count)
{
    QList<QDateTime> list;
    list.reserve(count);
    for (int i = 0; i < count; ++i) {
        list.append(anchor.addSecs(60 * minutesAway(i)));
    }
    return list;
}

/** Days of 2012, at least a week from an anchor in May, at any time of the day. */
inline QList<QDateTime> daysFrom(const QDateTime& anchor, int count)
{
    QList<QDateTime> list;
    list.reserve(count);
    for (int i = 0; i < count; ++i) {
        const int days = 7 + i * 37 % 120;
        list.append(anchor.addDays(i % 2 == 0 ? -days : days).addSecs(i * 7919 % 36'000));
    }
    return list;
}

} // namespace moments

#endif
