#ifndef ZEL_UTILITY_I18N_SETTINGS_TIMEZONESETTING_H
#define ZEL_UTILITY_I18N_SETTINGS_TIMEZONESETTING_H

#include <QtCore/QObject>
#include <QtCore/QString>
#include <zel/utility/i18n/Global.h>

namespace zel::utility::i18n {

class PpsManager;

/**
 * The time zone of the device. An object of this class relays the changes of the one reader that the process keeps.
 * They arrive through the event loop of the thread that created the object; a thread without one can ask at any time.
 */
class TimeZoneSetting : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TimeZoneSetting)

public:
    /** An instance constructed re-entrantly while the reader is being created receives no changed(). */
    explicit TimeZoneSetting(QObject* parent);
    ~TimeZoneSetting() override = default;

    /**
     * The identifier of the time zone, unchecked; empty where the device does not say.
     * Any thread may call.
     */
    static QString timeZone();

    ZEL_UTILITY_I18N_SIGNALS
    /** The setting has changed. */
    Q_SIGNAL void changed();

private:
    /** The one reader; null on a thread that is just creating it, and when the process has destroyed it. */
    static PpsManager* getPpsManager();
};

} // namespace zel::utility::i18n

#endif
