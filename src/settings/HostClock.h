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
    HostClock();

    QVariant value() const override;
    QString source() const override;

private Q_SLOTS:
    void onAnswer();

private:
    /** The clock of the region's time pattern. The pattern is looked up only when the region has changed. */
    int ownClock(const QLocale& region) const;

    SettingsPortal m_portal;
    bool m_reported = false;
    mutable std::mutex m_mutex; // for what is below
    std::optional<int> m_chosen;
    QString m_fault;
    mutable QLocale m_region;
    mutable std::optional<int> m_ownClock;
};

} // namespace zel::utility::i18n

#endif
