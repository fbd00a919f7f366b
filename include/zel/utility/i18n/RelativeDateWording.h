// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_RELATIVEDATEWORDING_H
#define ZEL_UTILITY_I18N_RELATIVEDATEWORDING_H

namespace zel::utility::i18n {

/**
 * The wording of relative dates.
 *
 * @code
 * #include <zel/utility/i18n/RelativeDateFormatter.h>
 *
 * using namespace zel::utility::i18n;
 * RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
 * formatter.setWording(RelativeDateWording::Natural); // "now" instead of "in 0 minutes"
 * @endcode
 */
namespace RelativeDateWording {

/** Two ways to word the same distance. Any other value means Exact. */
enum Type : int {
    /// Counts are always written, and a moment in another calendar year is always month and year: on 1 January, two
    /// minutes ago may read "December 2012".
    Exact = 1,
    /// Less than a minute is the locale's word for now, if its data has one. Days up to three days away are named even
    /// across the turn of the year: on 1 January, two minutes ago may read "yesterday 23:59".
    Natural = 2
};

} // namespace RelativeDateWording
} // namespace zel::utility::i18n

#endif
