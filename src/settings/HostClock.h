#ifndef ZEL_UTILITY_I18N_SETTINGS_HOSTCLOCK_H
#define ZEL_UTILITY_I18N_SETTINGS_HOSTCLOCK_H

#include "settings/HostSetting.h"
#include "settings/SettingsPortal.h"
#include <mutex>
#include <optional>
#include <QtCore/QLocale>

namespace zel::utility::i18n {

/**
 * The clock of the desktop, 12 or 24: what the settings portal says, and, as long as it does not say, the clock of the
 * region's own time pattern. The portal's silence is reported once, until it has answered again.
 */
class HostClock : public HostSetting
{
    Q_OBJECT

public:
    /** Short enough for a caller to wait for less than 100 ms altogether. */
    static constexpr int portalTimeoutMs = 80;

    explicit HostClock(int timeoutMs = portalTimeoutMs);

    QVariant value() const override;
    QString source() const override;
    std::unique_ptr<QObject> listen() override;

private Q_SLOTS:
    void onAnswer(const QVariant& answer, const QString& reason);

private:
    /** The clock of the region's time pattern. The pattern is looked up only when the region has changed. */
    int ownClock(const QLocale& region) const;

    /** Makes a portal whose answers are taken. */
    std::unique_ptr<SettingsPortal> ask(int timeoutMs);

    mutable std::mutex m_mutex; // for what is below
    bool m_reported = false;
    std::optional<int> m_chosen;
    QString m_reason;
    mutable QLocale m_region;
    mutable std::optional<int> m_ownClock;

    /** Follows on the application's thread, or without an application on the one that created this. */
    std::unique_ptr<SettingsPortal> m_portal;
};

} // namespace zel::utility::i18n

#endif
