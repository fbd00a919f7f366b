// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_CLOCKFORMAT_H
#define ZEL_UTILITY_I18N_CLOCKFORMAT_H

#include <QtCore/QObject>
#include <zel/utility/i18n/Global.h>

namespace zel::utility::i18n {

/**
 * The choice between a 12-hour and a 24-hour clock.
 *
 * @code
 * #include <zel/utility/i18n/RelativeDateFormatter.h>
 *
 * using namespace zel::utility::i18n;
 * RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
 * formatter.setClockFormat(ClockFormat::Use24hourClock);
 * @endcode
 */
namespace ClockFormat {
Q_NAMESPACE_EXPORT(ZEL_UTILITY_I18N_EXPORT)

/** The clock of a text. The clock setting of a device is one of the last two. */
enum Type : int {
    ApplyUserFormat = 1,   ///< the clock setting of the device; 12-hour where it is not set
    ApplyLocaleFormat = 2, ///< the clock customary in the locale
    Use12hourClock = 12,   ///< a 12-hour clock with an AM/PM field
    Use24hourClock = 24    ///< a 24-hour clock
};
Q_ENUM_NS(Type)

} // namespace ClockFormat
} // namespace zel::utility::i18n

#endif
