#ifndef ZEL_UTILITY_I18N_SETTINGS_PPSMANAGERSOURCE_H
#define ZEL_UTILITY_I18N_SETTINGS_PPSMANAGERSOURCE_H

#include "settings/HostSetting.h"
#include "settings/PpsManager.h"
#include <memory>
#include <mutex>

namespace zel::utility::i18n {

/** The setting of the Linux host that stands for an attribute of the device platform. */
class PpsManager::Source
{
public:
    Source(const char* path, const char* key);

    /** Null where the host has no such setting. */
    const std::unique_ptr<HostSetting> setting;

    std::mutex mutex; // for the way of a value from the setting to the manager
};

} // namespace zel::utility::i18n

#endif
