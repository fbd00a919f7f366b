#ifndef ZEL_UTILITY_I18N_RELATIVEDATEFORMAT_H
#define ZEL_UTILITY_I18N_RELATIVEDATEFORMAT_H

#include <QtCore/QObject>
#include <zel/utility/i18n/Global.h>

namespace zel::utility::i18n {

/**
 * How finely a relative date is told.
 *
 * @code
 * using namespace zel::utility::i18n;
 * RelativeDateFormatter formatter(RelativeDateFormat::NonTimeCritical);
 * @endcode
 */
namespace RelativeDateFormat {
Q_NAMESPACE_EXPORT(ZEL_UTILITY_I18N_EXPORT)

/** The two ladders that a RelativeDateFormatter can climb. */
enum Type : int {
    TimeCritical = 1,   ///< down to hours and minutes, with the time of day beside the days: messages, calls
    NonTimeCritical = 2 ///< days and coarser, without a time of day: files, notes
};
Q_ENUM_NS(Type)

} // namespace RelativeDateFormat
} // namespace zel::utility::i18n

#endif
