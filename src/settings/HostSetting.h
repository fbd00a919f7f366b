#ifndef ZEL_UTILITY_I18N_SETTINGS_HOSTSETTING_H
#define ZEL_UTILITY_I18N_SETTINGS_HOSTSETTING_H

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace zel::utility::i18n {

/**
 * A setting of the Linux host.
 *
 * It belongs to the thread that created it and hears of changes through that thread's event loop; value() and source()
 * may be asked on any thread.
 */
class HostSetting : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(HostSetting)

public:
    HostSetting() = default;
    ~HostSetting() override = default;

    virtual QVariant value() const = 0;

    /** Where the value comes from, for people. */
    virtual QString source() const = 0;

Q_SIGNALS:
    /** The value may have become another one. */
    void changed();
};

} // namespace zel::utility::i18n

#endif
