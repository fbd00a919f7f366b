#ifndef ZEL_UTILITY_I18N_SETTINGS_HOSTTIMEZONE_H
#define ZEL_UTILITY_I18N_SETTINGS_HOSTTIMEZONE_H

#include "settings/HostSetting.h"
#include <mutex>
#include <QtCore/QByteArray>

namespace zel::utility::i18n {

/**
 * The identifier of the host's time zone, as ICU knows it; empty where there is none. The environment's TZ goes before
 * the system's local-time link. Both are looked at whenever the value is asked for.
 */
class HostTimeZone : public HostSetting
{
    Q_OBJECT

public:
    /** @param link the local-time link of the system */
    explicit HostTimeZone(const QString& link = QStringLiteral("/etc/localtime"));

    QVariant value() const override;
    QString source() const override;
    std::unique_ptr<QObject> listen() override;

private:
    /** Identifies TZ and one version of the link and of all that it leads to. */
    QByteArray stamp() const;

    const QString m_link;
    mutable std::mutex m_mutex; // for what is below
    mutable QByteArray m_stamp;
    mutable QString m_id;
};

} // namespace zel::utility::i18n

#endif
