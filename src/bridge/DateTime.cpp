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
    const qint64 days = QDate::fromJulianDay(julianDayOf1970).daysTo(dateTime.date());
    return UDate{msPerDay} * static_cast<UDate>(days) + dateTime.time().msecsSinceStartOfDay();
}

} // namespace zel::utility::i18n
