#ifndef ZEL_UTILITY_I18N_PATTERNS_FORMATTINGPRIVATE_H
#define ZEL_UTILITY_I18N_PATTERNS_FORMATTINGPRIVATE_H

#include <QtCore/QString>

namespace zel::utility::i18n {

/**
 * The Qt format that shows what an ICU pattern shows.
 *
 * @return a null string for an empty pattern and for one with a field that Qt formats do not have
 *
 * @code
 * getQtDateTimePatternFromICU("EEEE, d MMMM y"); // "dddd, d MMMM yyyy"
 * @endcode
 */
QString getQtDateTimePatternFromICU(const QString& icuPattern);

} // namespace zel::utility::i18n

#endif
