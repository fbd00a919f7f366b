// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "settings/ClockSetting.h"

#include "bridge/Diagnostic.h"
#include "settings/SharedReader.h"
#include <QtCore/QRecursiveMutex>

namespace zel::utility::i18n {

namespace {

namespace clockSetting::pps {
constexpr const char* path = "/pps/system/settings";
constexpr const char* map = "@settings";
constexpr const char* key = "hourFormat";
} // namespace clockSetting::pps

namespace clockSetting::mutex {
QRecursiveMutex getPpsManager;
} // namespace clockSetting::mutex

} // namespace

ClockSetting::ClockSetting(QObject* parent) : QObject(parent)
{
    if (const SettingListener* const listener = SharedReader<ClockSetting>::listener(getPpsManager())) {
        connect(listener, SIGNAL(changed()), this, SIGNAL(changed()));
    }
}

ClockFormat::Type ClockSetting::clockFormat()
{
    const QVariant value = SharedReader<ClockSetting>::value(getPpsManager());
    if (!value.isValid()) {
        return ClockFormat::Use12hourClock;
    }
    switch (value.toInt()) {
    case ClockFormat::Use12hourClock:
        return ClockFormat::Use12hourClock;
    case ClockFormat::Use24hourClock:
        return ClockFormat::Use24hourClock;
    default:
        Diagnostic::write(QtCriticalMsg,
                          "zel::utility::i18n::ClockSetting::onPpsUpdate encountered unknown ClockFormat in PPS");
        return ClockFormat::Use12hourClock;
    }
}

PpsManager* ClockSetting::getPpsManager()
{
    return SharedReader<ClockSetting>::get(clockSetting::mutex::getPpsManager, clockSetting::pps::path,
                                           clockSetting::pps::map, clockSetting::pps::key,
                                           PpsManager::HostSetting::Clock);
}

} // namespace zel::utility::i18n
