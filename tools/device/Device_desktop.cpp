// The settings of a Linux host. They are the user's, so they are shown here and changed in the desktop.

#include "bridge/Locale.h"
#include "device/Assignments.h"
#include "device/Device.h"
#include "settings/ChosenSetting.h"
#include "settings/ClockSetting.h"
#include "settings/HostClock.h"
#include "settings/HostTimeZone.h"
#include "settings/TimeZoneSetting.h"
#include "terminal/Failure.h"

namespace zel::tool {

namespace {

using zel::utility::i18n::ChosenSetting;
using zel::utility::i18n::ClockSetting;
using zel::utility::i18n::HostClock;
using zel::utility::i18n::HostTimeZone;
using zel::utility::i18n::TimeZoneSetting;

// The settings of this process, where it has its own.
std::optional<QMap<QString, QString>> ownSettings;

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
            return QLatin1String(variable) +
                   QStringLiteral("; running programs see no change of the session's environment");
        }
    }
    return QStringLiteral("the default, as neither LC_ALL, LC_TIME nor LANG is set");
}

void requireOwn(const QString& key)
{
    if (!ownSettings) {
        throw Failure(key + QStringLiteral(" belongs to the desktop: ") + advice(key));
    }
}

void takeOwnSettings()
{
    QMap<QString, QVariant> settings;
    if (ownSettings->contains(Assignments::hourFormat())) {
        settings[QStringLiteral("hourFormat")] = ownSettings->value(Assignments::hourFormat()).toInt();
    }
    if (ownSettings->contains(Assignments::timeZone())) {
        settings[QStringLiteral("_CS_TIMEZONE")] = ownSettings->value(Assignments::timeZone());
    }
    ChosenSetting::choose(settings);
    if (ownSettings->contains(Assignments::region())) {
        qputenv("LC_ALL", ownSettings->value(Assignments::region()).toUtf8());
    }
}

Finding examineOwn(const QString& key)
{
    const std::optional<QString> value = Device::get(key);
    return {value ? Finding::Good : Finding::Note, key, value.value_or(QStringLiteral("not set")), {}};
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
    if (ownSettings) {
        return ownSettings->contains(key) ? std::make_optional(ownSettings->value(key)) : std::nullopt;
    }
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
    for (auto value = values.begin(); value != values.end(); ++value) {
        requireOwn(value.key());
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
    return zel::utility::i18n::Locale::region();
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

bool Device::isUnset(const QString& message)
{
    // That the region's own clock applies is what a host without a desktop is for; 'doctor' tells why.
    return message.contains(QLatin1String("HostClock::onAnswer()"));
}

QList<Finding> Device::examine()
{
    if (ownSettings) {
        return {examineOwn(Assignments::hourFormat()), examineOwn(Assignments::timeZone()),
                examineOwn(Assignments::region())};
    }
    // Nobody waits for a text here: long enough for a portal that is just being started.
    constexpr int portalTimeoutMs = 5000;
    const HostClock clock(portalTimeoutMs);
    const HostTimeZone zone;
    return {examineSetting(Assignments::hourFormat(), clock.value().toString(), clock.source()),
            examineSetting(Assignments::timeZone(), zone.value().toString(), zone.source()),
            examineSetting(Assignments::region(), region().name(), regionSource())};
}

} // namespace zel::tool
