// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "settings/TimeZoneSetting.h"

#include "settings/SharedReader.h"
#include <QtCore/QRecursiveMutex>

namespace zel::utility::i18n {

namespace {

namespace pps {
constexpr const char* path = "/pps/services/confstr/_CS_TIMEZONE";
constexpr const char* map = "@_CS_TIMEZONE";
constexpr const char* key = "_CS_TIMEZONE";
} // namespace pps

namespace mutex {
QRecursiveMutex getPpsManager;
}

} // namespace

TimeZoneSetting::TimeZoneSetting(QObject* parent) : QObject(parent)
{
    if (const SettingListener* const listener = SharedReader<TimeZoneSetting>::listener(getPpsManager())) {
        connect(listener, SIGNAL(changed()), this, SIGNAL(changed()));
    }
}

QString TimeZoneSetting::timeZone()
{
    return SharedReader<TimeZoneSetting>::value(getPpsManager()).toString();
}

PpsManager* TimeZoneSetting::getPpsManager()
{
    return SharedReader<TimeZoneSetting>::get(mutex::getPpsManager, pps::path, pps::map, pps::key,
                                              PpsManager::HostSetting::TimeZone);
}

} // namespace zel::utility::i18n
