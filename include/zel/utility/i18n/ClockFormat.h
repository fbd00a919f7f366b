#ifndef ZEL_UTILITY_I18N_CLOCKFORMAT_H
#define ZEL_UTILITY_I18N_CLOCKFORMAT_H

#include <QtCore/QObject>
#include <zel/utility/i18n/Global.h>

namespace zel::utility::i18n {

/**
 * The choice between a 12-hour and a 24-hour clock.
 *
 * @code
 * using namespace zel::utility::i18n;
 * formatter.setClockFormat(ClockFormat::Use24hourClock);
 * @endcode
 */
namespace ClockFormat {
Q_NAMESPACE_EXPORT(ZEL_UTILITY_I18N_EXPORT)

/** Which clock a text shows. The device's own setting is only ever one of the last two. */
enum Type : int {
    ApplyUserFormat = 1,   ///< follow the user's setting on the device
    ApplyLocaleFormat = 2, ///< keep the clock that is customary in the locale
    Use12hourClock = 12,   ///< force a 12-hour clock with an AM/PM field
    Use24hourClock = 24    ///< force a 24-hour clock
};
Q_ENUM_NS(Type)

} // namespace ClockFormat
} // namespace zel::utility::i18n

#endif
