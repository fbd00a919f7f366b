#ifndef ZEL_HOST_CLOCK_H
#define ZEL_HOST_CLOCK_H

#include "SettingsPortal.h"
#include <mutex>
#include <optional>
#include <QtCore/QLocale>
#include <zel/host/Setting.h>

namespace zel::host {

/**
 * The clock of the desktop, 12 or 24: what the settings portal says, and, as long as it does not say, the clock of the
 * region's own time pattern. The portal's silence is reported once, until it has answered again.
 */
class Clock : public Setting
{
    Q_OBJECT

public:
    /** Waits for the portal no longer than the timeout. */
    Clock(Reporter reporter, int timeoutMs);

    QVariant value() const override;
    QString source() const override;
    std::unique_ptr<QObject> listen() override;

private Q_SLOTS:
    void onAnswer(const QVariant& answer, const QString& reason);

private:
    /** Takes what the portal says. Returns why it does not say, if that is to be reported. */
    QString take(const QVariant& answer, const QString& reason);

    /** The clock of the region's time pattern. The pattern is looked up only when the region has changed. */
    int ownClock(const QLocale& region) const;

    /** Makes a portal whose answers are taken. */
    std::unique_ptr<SettingsPortal> ask(int timeoutMs);

    const Reporter m_reporter;
    mutable std::mutex m_mutex; // for what is below
    bool m_reported = false;
    std::optional<int> m_chosen;
    QString m_reason;
    mutable QLocale m_region;
    mutable std::optional<int> m_ownClock;

    /** Follows on the application's thread, or without an application on the one that created this. */
    std::unique_ptr<SettingsPortal> m_portal;
};

} // namespace zel::host

#endif
