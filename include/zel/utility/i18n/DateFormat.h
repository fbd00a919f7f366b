#ifndef ZEL_UTILITY_I18N_DATEFORMAT_H
#define ZEL_UTILITY_I18N_DATEFORMAT_H

namespace zel::utility::i18n {

/**
 * The length of a date or time format.
 *
 * @code
 * using namespace zel::utility::i18n;
 * const QString pattern = dateFormat(QLocale("en_US"), DateFormat::Full); // "dddd, MMMM d, yyyy"
 * @endcode
 */
namespace DateFormat {

/**
 * How much a format shows. Any other value asks for the medium length; where the locale's own pattern cannot be
 * expressed in Qt syntax, such a value falls back to Qt's long format.
 */
enum Type : int {
    Short = 1,  ///< numbers only where the locale has such a form: 5/16/12
    Medium = 2, ///< abbreviated names: May 16, 2012
    Long = 3,   ///< full names: May 16, 2012
    Full = 4    ///< full names with the weekday: Wednesday, May 16, 2012
};

} // namespace DateFormat
} // namespace zel::utility::i18n

#endif
