// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_DATEFORMAT_H
#define ZEL_UTILITY_I18N_DATEFORMAT_H

namespace zel::utility::i18n {

/**
 * The length of a date or time format.
 *
 * @code
 * #include <zel/utility/i18n/Formatting.h>
 *
 * using namespace zel::utility::i18n;
 * const QString pattern = dateFormat(QLocale("en_US"), DateFormat::Full); // "dddd, MMMM d, yyyy"
 * @endcode
 */
namespace DateFormat {

/**
 * Four lengths. Any other value means Medium; where Qt's own format is the fallback, it means Qt's long format.
 */
enum Type : int {
    Short = 1,  ///< numbers only, if the locale has such a form: 9/3/12
    Medium = 2, ///< abbreviated names: Sep 3, 2012
    Long = 3,   ///< full names: September 3, 2012
    Full = 4    ///< full names with the weekday: Monday, September 3, 2012
};

} // namespace DateFormat
} // namespace zel::utility::i18n

#endif
