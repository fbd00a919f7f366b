// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_SETTINGS_PPSMANAGERSOURCE_H
#define ZEL_UTILITY_I18N_SETTINGS_PPSMANAGERSOURCE_H

#include "settings/PpsManager.h"
#include <memory>
#include <mutex>
#include <zel/host/Setting.h>

namespace zel::utility::i18n {

/** The setting of the Linux host for an attribute of the device platform. */
class PpsManager::Source
{
public:
    explicit Source(HostSetting host);

    /** Null if the host has no such setting. */
    const std::unique_ptr<zel::host::Setting> setting;

    /** Gives the setting's value to the manager. */
    void update(PpsManager& manager);

private:
    std::mutex m_mutex; // held while a value goes from the setting to the manager
};

} // namespace zel::utility::i18n

#endif
