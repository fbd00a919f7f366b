// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_BRIDGE_DATETIME_H
#define ZEL_UTILITY_I18N_BRIDGE_DATETIME_H

#include <QtCore/QDateTime>
#include <unicode/utypes.h>

namespace zel::utility::i18n {

/** Converts moments from Qt to ICU. All functions are reentrant. */
class DateTime
{
public:
    DateTime() = delete;

    static constexpr qint64 msPerDay = 86'400'000;
    static constexpr qint64 julianDayOf1970 = 2'440'588; ///< the Julian day number of 1 January 1970

    /** The instant of a moment. */
    static UDate toICU(const QDateTime& dateTime);

    /** The date and time that a moment shows, regardless of its time zone, interpreted as GMT. */
    static UDate wallClock(const QDateTime& dateTime);
};

} // namespace zel::utility::i18n

#endif
