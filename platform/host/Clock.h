// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_HOST_CLOCK_H
#define ZEL_HOST_CLOCK_H

#include "SettingsPortal.h"
#include <mutex>
#include <optional>
#include <QtCore/QLocale>
#include <zel/host/Setting.h>

namespace zel::host {

/**
 * The clock of the desktop, 12 or 24: from the settings portal; fallback: that of the region's time pattern. A silent
 * portal is reported once, until it has answered again.
 */
class Clock : public Setting
{
    Q_OBJECT

public:
    /** Waits for the portal up to the timeout. */
    Clock(Reporter reporter, int timeoutMs);

    QVariant value() const override;
    QString source() const override;
    std::unique_ptr<QObject> listen() override;

private Q_SLOTS:
    void onAnswer(const QVariant& answer, const QString& reason);

private:
    /** Uses the value of the portal. Returns the reason if there is none and it has to be reported. */
    QString take(const QVariant& answer, const QString& reason);

    /** The clock of the region's time pattern, which is looked up only if the region changed. */
    int ownClock(const QLocale& region) const;

    /** Creates a portal and connects its answers. */
    std::unique_ptr<SettingsPortal> ask(int timeoutMs);

    const Reporter m_reporter;
    mutable std::mutex m_mutex; // guards the members below
    bool m_reported = false;
    std::optional<int> m_chosen;
    QString m_reason;
    mutable QLocale m_region;
    mutable std::optional<int> m_ownClock;

    /** Follows the portal on the application's thread; without an application, on the thread that created this. */
    std::unique_ptr<SettingsPortal> m_portal;
};

} // namespace zel::host

#endif
