// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// The settings of a Linux host. They are shown here, and changed in the desktop's settings.

#include "device/Assignments.h"
#include "device/Device.h"
#include "terminal/Failure.h"
#include <zel/host/Settings.h>

namespace zel::tool {

namespace {

// The settings of this process, if it overrides them.
std::optional<QMap<QString, QString>> ownSettings;

// How to change a setting, with an example value or the given one.
QString advice(const QString& key, const QString& value = {})
{
    if (key == Assignments::hourFormat()) {
        return QStringLiteral("change it in the settings of the desktop, or with "
                              "'gsettings set org.gnome.desktop.interface clock-format %1h'")
            .arg(value.isEmpty() ? QStringLiteral("24") : value);
    }
    if (key == Assignments::timeZone()) {
        return QStringLiteral("change it with 'timedatectl set-timezone %1', or for one program with TZ")
            .arg(value.isEmpty() ? QStringLiteral("Europe/Berlin") : value);
    }
    return QStringLiteral("change it with 'localectl set-locale LC_TIME=%1.UTF-8', or for one program with LC_TIME")
        .arg(value.isEmpty() ? QStringLiteral("de_DE") : value);
}

// The host setting, read independently of the library.
std::unique_ptr<zel::host::Setting> hostSetting(const QString& key, int portalTimeoutMs = zel::host::portalTimeoutMs)
{
    if (key == Assignments::hourFormat()) {
        return zel::host::clock(&zel::host::ignore, portalTimeoutMs);
    }
    return key == Assignments::timeZone() ? zel::host::timeZone(&zel::host::ignore)
                                          : zel::host::region(&zel::host::ignore);
}

void requireOwn(const QString& key, const QString& value = {})
{
    if (!ownSettings) {
        throw Failure(key + QStringLiteral(" belongs to the desktop: ") + advice(key, value));
    }
}

void takeOwnSettings()
{
    qputenv(zel::host::clockVariable, ownSettings->value(Assignments::hourFormat()).toUtf8());
    qputenv(zel::host::timeZoneVariable, ownSettings->value(Assignments::timeZone()).toUtf8());
    if (ownSettings->contains(Assignments::region())) {
        qputenv("LC_ALL", ownSettings->value(Assignments::region()).toUtf8());
    }
}

Finding examineOwn(const QString& key)
{
    const std::optional<QString> value = Device::get(key);
    return {value ? Finding::Good : Finding::Note, key, value.value_or(QStringLiteral("not set")), {}};
}

Finding examineSetting(const QString& key)
{
    // Long enough for a portal that is starting.
    constexpr int portalTimeoutMs = 5000;
    const auto setting = hostSetting(key, portalTimeoutMs);
    const QString value = setting->value().toString();
    return {value.isEmpty() ? Finding::Wrong : Finding::Good, key,
            (value.isEmpty() ? QStringLiteral("unknown") : value) + QLatin1String(", from ") + setting->source(),
            value.isEmpty() ? advice(key) : QString()};
}

} // namespace

std::optional<QString> Device::get(const QString& key)
{
    if (ownSettings) {
        return ownSettings->contains(key) ? std::make_optional(ownSettings->value(key)) : std::nullopt;
    }
    const QString value = hostSetting(key)->value().toString();
    return value.isEmpty() ? std::nullopt : std::make_optional(value);
}

QString Device::howToChange()
{
    return QStringLiteral("They are settings of the desktop: 'set' and 'unset' change nothing here, and report how to\n"
                          "change each.");
}

void Device::set(const QMap<QString, QString>& values, Permissions /*permissions*/)
{
    for (auto value = values.begin(); value != values.end(); ++value) {
        requireOwn(value.key(), value.value());
        ownSettings->insert(value.key(), value.value());
    }
    takeOwnSettings();
}

void Device::unset(const QStringList& keys)
{
    for (const QString& key : keys) {
        requireOwn(key);
        ownSettings->remove(key);
    }
    takeOwnSettings();
}

QLocale Device::region()
{
    return zel::host::regionNow();
}

void Device::requireReadable() {}

void Device::useEmpty(const QString& /*directory*/)
{
    ownSettings.emplace();
    takeOwnSettings();
}

void Device::useRegion(const QString& name, const QString& /*directory*/)
{
    qputenv("LC_ALL", name.toUtf8());
}

void Device::keepLocalTime() {} // it is a setting here

QList<Finding> Device::examine()
{
    QList<Finding> findings;
    for (const QString& key : Assignments::keys()) {
        findings.append(ownSettings ? examineOwn(key) : examineSetting(key));
    }
    return findings;
}

} // namespace zel::tool
