// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "bridge/DateTime.h"

namespace zel::utility::i18n {

UDate DateTime::toICU(const QDateTime& dateTime)
{
    return static_cast<UDate>(dateTime.toMSecsSinceEpoch());
}

UDate DateTime::wallClock(const QDateTime& dateTime)
{
    constexpr qint64 epoch = 2440588; // 1 January 1970 as a Julian day
    constexpr UDate day = 86'400'000;
    return day * static_cast<UDate>(QDate::fromJulianDay(epoch).daysTo(dateTime.date())) +
           dateTime.time().msecsSinceStartOfDay();
}

} // namespace zel::utility::i18n
