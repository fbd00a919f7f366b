// The settings of a Linux host. They are the user's, so they are shown here and changed in the desktop.

#include "Assignments.h"
#include "bridge/Locale.h"
#include "Device.h"
#include "Failure.h"
#include "settings/ClockSetting.h"
#include "settings/HostClock.h"
#include "settings/HostTimeZone.h"
#include "settings/TimeZoneSetting.h"

namespace zel::tool {

namespace {

using zel::utility::i18n::ClockSetting;
using zel::utility::i18n::HostClock;
using zel::utility::i18n::HostTimeZone;
using zel::utility::i18n::TimeZoneSetting;

// Whether the settings given to set() are those of this process only.
bool onlyHere = false;

QString advice(const QString& key)
{
    static const QMap<QString, QString> ways = {
        {Assignments::hourFormat(), QStringLiteral("change it in the settings of the desktop, or with "
                                                   "'gsettings set org.gnome.desktop.interface clock-format 24h'")},
        {Assignments::timeZone(),
         QStringLiteral("change it with 'timedatectl set-timezone Europe/Berlin', or for one program with TZ")},
        {Assignments::region(),
         QStringLiteral("change it with 'localectl set-locale LC_TIME=de_DE.UTF-8', or for one program with LC_TIME")}};
    return ways.value(key);
}

QString regionSource()
{
    for (const char* const variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        if (!qEnvironmentVariableIsEmpty(variable)) {
            return QLatin1String(variable);
        }
    }
    return QStringLiteral("the default, as neither LC_ALL, LC_TIME nor LANG is set");
}

Finding examineSetting(const QString& key, const QString& value, const QString& source)
{
    return {value.isEmpty() ? Finding::Wrong : Finding::Good, key,
            (value.isEmpty() ? QStringLiteral("unknown") : value) + QLatin1String(", from ") + source,
            value.isEmpty() ? advice(key) : QString()};
}

} // namespace

std::optional<QString> Device::get(const QString& key)
{
    if (key == Assignments::hourFormat()) {
        return QString::number(ClockSetting::clockFormat());
    }
    if (key == Assignments::timeZone()) {
        const QString id = TimeZoneSetting::timeZone();
        return id.isEmpty() ? std::nullopt : std::make_optional(id);
    }
    return region().name();
}

void Device::set(const QMap<QString, QString>& values, Permissions /*permissions*/)
{
    for (const QString& key : values.keys()) {
        if (!onlyHere) {
            throw Failure(key + QStringLiteral(" belongs to the desktop: ") + advice(key));
        }
        if (key == Assignments::hourFormat()) {
            throw Failure(key + QStringLiteral(" is the desktop's and has no other value for one program"));
        }
        // What the environment says goes before what the host says.
        qputenv(key == Assignments::timeZone() ? "TZ" : "LC_ALL", values.value(key).toUtf8());
    }
}

void Device::unset(const QStringList& keys)
{
    for (const QString& key : keys) {
        throw Failure(key + QStringLiteral(" belongs to the desktop: ") + advice(key));
    }
}

QLocale Device::region()
{
    return zel::utility::i18n::Locale::region();
}

void Device::requireReadable() {}

QStringList Device::clocks()
{
    return {};
}

void Device::useRoot(const QString& /*directory*/)
{
    onlyHere = true;
}

bool Device::isUnset(const QString& message)
{
    // That the region's own clock applies is what a host without a desktop is for; 'doctor' tells why.
    return message.contains(QLatin1String("HostClock::onAnswer()"));
}

QList<Finding> Device::examine()
{
    // Nobody waits for a text here: long enough for a portal that is just being started.
    constexpr int portalTimeoutMs = 5000;
    const HostClock clock(portalTimeoutMs);
    const HostTimeZone zone;
    return {examineSetting(Assignments::hourFormat(), clock.value().toString(), clock.source()),
            examineSetting(Assignments::timeZone(), zone.value().toString(), zone.source()),
            examineSetting(Assignments::region(), region().name(), regionSource())};
}

} // namespace zel::tool
