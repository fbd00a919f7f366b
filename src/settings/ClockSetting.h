#ifndef ZEL_UTILITY_I18N_SETTINGS_CLOCKSETTING_H
#define ZEL_UTILITY_I18N_SETTINGS_CLOCKSETTING_H

#include <QtCore/QObject>
#include <zel/utility/i18n/ClockFormat.h>
#include <zel/utility/i18n/Global.h>

namespace zel::utility::i18n {

class PpsManager;

/**
 * The clock setting of the device. An object of this class relays the changes of the one reader that the process keeps.
 * They arrive through the event loop of the thread that created the object; a thread without one can ask at any time.
 * On a desktop the answer is what was last heard, through the event loop of any thread.
 */
class ClockSetting : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ClockSetting)

public:
    /** An instance constructed re-entrantly while the reader is being created receives no changed(). */
    explicit ClockSetting(QObject* parent);
    ~ClockSetting() override = default;

    /**
     * The clock that the user chose: Use12hourClock or Use24hourClock. It is the 12-hour clock where the device does
     * not say, and, with a message, where it says something else. Any thread may call.
     */
    static zel::utility::i18n::ClockFormat::Type clockFormat();

    ZEL_UTILITY_I18N_SIGNALS
    /** The setting has changed. */
    Q_SIGNAL void changed();

private:
    /** The one reader; null on a thread that is just creating it, and when the process has destroyed it. */
    static PpsManager* getPpsManager();
};

} // namespace zel::utility::i18n

#endif
