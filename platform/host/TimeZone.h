// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_HOST_TIMEZONE_H
#define ZEL_HOST_TIMEZONE_H

#include <mutex>
#include <QtCore/QByteArray>
#include <zel/host/Setting.h>

namespace zel::host {

/**
 * The identifier of the host's time zone in ICU; empty if there is none. The environment's TZ takes precedence over the
 * system's local-time link. Every query reads both.
 */
class TimeZone : public Setting
{
    Q_OBJECT

public:
    /** @param link the local-time link of the system */
    explicit TimeZone(Reporter reporter, const QString& link = QStringLiteral("/etc/localtime"));

    QVariant value() const override;
    QString source() const override;
    std::unique_ptr<QObject> listen() override;

private:
    /** Identifies TZ and one version of the link and everything it leads to. */
    QByteArray stamp() const;

    const Reporter m_reporter;
    const QString m_link;
    mutable std::mutex m_mutex; // guards the members below
    mutable QByteArray m_stamp;
    mutable QString m_id;
};

} // namespace zel::host

#endif
