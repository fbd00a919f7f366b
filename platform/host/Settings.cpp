// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include <zel/host/Settings.h>

#include "Clock.h"
#include "EnvironmentSetting.h"
#include "Region.h"
#include "TimeZone.h"

namespace zel::host {

std::unique_ptr<Setting> clock(Reporter reporter, int timeoutMs)
{
    if (EnvironmentSetting::isInUse(clockVariable)) {
        return std::make_unique<EnvironmentSetting>(clockVariable);
    }
    return std::make_unique<Clock>(reporter, timeoutMs);
}

std::unique_ptr<Setting> timeZone(Reporter reporter)
{
    if (EnvironmentSetting::isInUse(timeZoneVariable)) {
        return std::make_unique<EnvironmentSetting>(timeZoneVariable);
    }
    return std::make_unique<TimeZone>(reporter);
}

std::unique_ptr<Setting> region(Reporter reporter)
{
    return std::make_unique<Region>(reporter);
}

QLocale regionNow()
{
    return Region::now();
}

} // namespace zel::host
