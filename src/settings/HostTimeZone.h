#ifndef ZEL_UTILITY_I18N_SETTINGS_HOSTTIMEZONE_H
#define ZEL_UTILITY_I18N_SETTINGS_HOSTTIMEZONE_H

#include "settings/HostSetting.h"
#include <memory>
#include <mutex>
#include <QtCore/QByteArray>
#include <QtCore/QFileSystemWatcher>

namespace zel::utility::i18n {

/**
 * The identifier of the host's time zone, as ICU knows it; empty where it cannot be told. The environment's TZ goes
 * before the system's local-time link, which is followed.
 */
class HostTimeZone : public HostSetting
{
    Q_OBJECT

public:
    /** @param link the local-time link that is watched for changes */
    explicit HostTimeZone(const QString& link = QStringLiteral("/etc/localtime"));

    QVariant value() const override;
    QString source() const override;

private Q_SLOTS:
    void watch();
    void look();

private:
    const QString m_link;
    std::unique_ptr<QFileSystemWatcher> m_watcher;
    mutable std::mutex m_mutex; // for what is below
    mutable QByteArray m_variable;
    mutable QString m_id;
};

} // namespace zel::utility::i18n

#endif
