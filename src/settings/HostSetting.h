#ifndef ZEL_UTILITY_I18N_SETTINGS_HOSTSETTING_H
#define ZEL_UTILITY_I18N_SETTINGS_HOSTSETTING_H

#include <memory>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace zel::utility::i18n {

/** A setting of the Linux host. All functions may be called on any thread. */
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

    /**
     * Lets the calling thread hear of changes through its event loop for as long as the result lives; null where the
     * thread hears of them already.
     */
    virtual std::unique_ptr<QObject> listen() = 0;

Q_SIGNALS:
    /** The value may have become another one. Emitted on the thread that hears of it. */
    void changed();
};

} // namespace zel::utility::i18n

#endif
