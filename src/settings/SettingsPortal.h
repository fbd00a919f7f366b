#ifndef ZEL_UTILITY_I18N_SETTINGS_SETTINGSPORTAL_H
#define ZEL_UTILITY_I18N_SETTINGS_SETTINGSPORTAL_H

#include "settings/BusProbe.h"
#include <memory>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusVariant>

class QDeadlineTimer;

namespace zel::utility::i18n {

/**
 * One setting of the desktop, asked of the settings portal on the session bus and followed there, also when the portal
 * goes away and comes back. Belongs to the thread that created it.
 */
class SettingsPortal : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingsPortal)

public:
    /**
     * Asks for the setting. An answer that comes later than within `patience` milliseconds is taken when it comes.
     *
     * @param group the namespace of the setting
     */
    SettingsPortal(const QString& group, const QString& key, int patience);
    ~SettingsPortal() override;

    /** The setting; invalid as long as the portal does not tell. */
    QVariant value() const { return m_value; }

    /** Why there is no value. */
    QString fault() const { return m_fault; }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void join();
    void onFinished();
    void onSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
    void onOwnerChanged(const QString& name, const QString& previous, const QString& owner);
    void onBusGone();

private:
    void ask(const QString& method);
    void wait(const QDeadlineTimer& deadline);
    void take(const QDBusVariant& value);
    void lose(const QString& fault);

    const QString m_group;
    const QString m_key;
    const QString m_address;
    QVariant m_value;
    QString m_fault;
    std::unique_ptr<BusProbe> m_probe;
    QDBusConnection m_bus;
    QString m_method;
    std::unique_ptr<QDBusPendingCallWatcher> m_call;
};

} // namespace zel::utility::i18n

#endif
