// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "settings/TimeZoneSetting.h"

#include "settings/SharedReader.h"
#include <QtCore/QRecursiveMutex>

namespace zel::utility::i18n {

namespace {

namespace timeZoneSetting::pps {
constexpr const char* path = "/pps/services/confstr/_CS_TIMEZONE";
constexpr const char* map = "@_CS_TIMEZONE";
constexpr const char* key = "_CS_TIMEZONE";
} // namespace timeZoneSetting::pps

namespace timeZoneSetting::mutex {
QRecursiveMutex getPpsManager;
} // namespace timeZoneSetting::mutex

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
    return SharedReader<TimeZoneSetting>::get(timeZoneSetting::mutex::getPpsManager, timeZoneSetting::pps::path,
                                              timeZoneSetting::pps::map, timeZoneSetting::pps::key,
                                              PpsManager::HostSetting::TimeZone);
}

} // namespace zel::utility::i18n
