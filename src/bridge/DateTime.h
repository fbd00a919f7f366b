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

    /** The instant of a moment. */
    static UDate toICU(const QDateTime& dateTime);

    /** The date and time that a moment shows, regardless of its time zone, interpreted as GMT. */
    static UDate wallClock(const QDateTime& dateTime);
};

} // namespace zel::utility::i18n

#endif
