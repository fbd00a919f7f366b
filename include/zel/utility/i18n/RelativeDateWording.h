#ifndef ZEL_UTILITY_I18N_RELATIVEDATEWORDING_H
#define ZEL_UTILITY_I18N_RELATIVEDATEWORDING_H

namespace zel::utility::i18n {

/**
 * How relative dates are worded.
 *
 * @code
 * using namespace zel::utility::i18n;
 * formatter.setWording(RelativeDateWording::Natural); // "now" instead of "in 0 minutes"
 * @endcode
 */
namespace RelativeDateWording {

/** Two ways to word the same distance. Any other value reads as Exact. */
enum Type : int {
    Exact = 1, ///< every count is written, and another calendar year is always written as month and year
    /// Less than a minute reads as the locale's own word for now, where its data has one. Days up to three days away
    /// are named across the turn of the year, too: on 1 January, "yesterday 23:59".
    Natural = 2
};

} // namespace RelativeDateWording
} // namespace zel::utility::i18n

#endif
