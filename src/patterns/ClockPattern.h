// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_PATTERNS_CLOCKPATTERN_H
#define ZEL_UTILITY_I18N_PATTERNS_CLOCKPATTERN_H

#include <QtCore/QString>
#include <zel/utility/i18n/ClockFormat.h>

namespace zel::utility::i18n {

/** Applies a clock to skeletons. The letter "j" is the hour of the clock customary in the locale. */
class ClockPattern
{
public:
    ClockPattern() = delete;

    /** Returns whether no clock changes a skeleton, as it has no "j" or "J". */
    static bool isNotApplicable(const QString& skeleton);

    /**
     * The skeleton for a clock: each "j" becomes "h" or "H", or stays for ApplyLocaleFormat. For a skeleton with "j",
     * an invalid format gives a null string, with a message.
     *
     * @code
     * ClockPattern::apply("jmm", ClockFormat::Use24hourClock); // "Hmm"
     * @endcode
     */
    static QString apply(const QString& skeleton, zel::utility::i18n::ClockFormat::Type format);
};

} // namespace zel::utility::i18n

#endif
