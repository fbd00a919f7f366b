#ifndef ZEL_UTILITY_I18N_PATTERNS_CLOCKPATTERN_H
#define ZEL_UTILITY_I18N_PATTERNS_CLOCKPATTERN_H

#include <QtCore/QString>
#include <zel/utility/i18n/ClockFormat.h>

namespace zel::utility::i18n {

/** Skeletons under a choice of clock. The letter "j" stands for the hour of the clock that the locale prefers. */
class ClockPattern
{
public:
    ClockPattern() = delete;

    /** True for a skeleton without "j" or "J": no clock changes anything about it. */
    static bool isNotApplicable(const QString& skeleton);

    /**
     * The skeleton for a clock: each "j" becomes "h" or "H", or stays for the locale to decide. An invalid format gives
     * a null string, with a message, where there is something to decide.
     *
     * @code
     * ClockPattern::apply("jmm", ClockFormat::Use24hourClock); // "Hmm"
     * @endcode
     */
    static QString apply(const QString& skeleton, zel::utility::i18n::ClockFormat::Type format);
};

} // namespace zel::utility::i18n

#endif
