#ifndef ZEL_UTILITY_I18N_SETTINGS_CHOSENSETTING_H
#define ZEL_UTILITY_I18N_SETTINGS_CHOSENSETTING_H

#include "settings/HostSetting.h"
#include <QtCore/QMap>

namespace zel::utility::i18n {

/**
 * A setting that a tool chose for its process, in the place of the host's. Settings that are first asked for after
 * choose() are of this kind.
 */
class ChosenSetting : public HostSetting
{
    Q_OBJECT

public:
    /** Replaces the settings of this process; those that are left out are not set. Keys are those of the device. */
    static void choose(const QMap<QString, QVariant>& settings);
    static bool isInUse();

    explicit ChosenSetting(const QString& key) : m_key(key) {}

    QVariant value() const override;
    QString source() const override;
    std::unique_ptr<QObject> listen() override { return nullptr; }

private:
    const QString m_key;
};

} // namespace zel::utility::i18n

#endif
