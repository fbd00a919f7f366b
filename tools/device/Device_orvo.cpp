// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// The settings of a device, in settings objects.

#include "device/Assignments.h"
#include "device/Device.h"
#include "device/SettingsLock.h"
#include "device/SettingsObject.h"
#include "terminal/Failure.h"
#include <algorithm>
#include <array>
#include <cstdlib>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTimeZone>
#include <zel/PpsObject.h>
#include <zel/system/LocaleHandler.h>
#include <zel/system/LocaleName.h>

namespace zel::tool {

namespace {

// The object and attribute of a setting.
struct Place
{
    QString object;
    QString attribute;
};

Place placeOf(const QString& key)
{
    static const QMap<QString, Place> places = {
        {Assignments::hourFormat(), {QStringLiteral("/pps/system/settings"), QStringLiteral("hourFormat")}},
        {Assignments::timeZone(),
         {QStringLiteral("/pps/services/confstr/_CS_TIMEZONE"), QStringLiteral("_CS_TIMEZONE")}},
        {Assignments::region(), {QStringLiteral("/pps/system/locale"), QStringLiteral("region")}},
    };
    return places.value(key);
}

QVariant encoded(const QString& key, const QString& value)
{
    return key == Assignments::hourFormat() ? QVariant(value.toInt()) : QVariant(value);
}

// The object of a setting; empty if it is missing, or torn and to be replaced.
SettingsObject objectOf(const QString& key, bool replace = false)
{
    SettingsObject object(placeOf(key).object);
    if (object.state() == SettingsObject::Unreadable || (object.state() == SettingsObject::Torn && !replace)) {
        throw Failure(object.error());
    }
    return object;
}

constexpr const char* settingsDirectory = "/pps";

// The directory of ZEL_PPS_ROOT may be created; without it, only a device has a settings directory.
bool isDevice()
{
    return *PpsObject::root() != '\0' || QFileInfo::exists(QLatin1String(settingsDirectory));
}

void requireDevice(const QStringList& keys)
{
    if (isDevice()) {
        return;
    }
    QStringList objects;
    for (const QString& key : keys) {
        objects.append(placeOf(key).object);
    }
    throw Failure(QStringLiteral("this machine has no %1; --create makes it, with %2")
                      .arg(QLatin1String(settingsDirectory), objects.join(QLatin1String(", "))));
}

QString rootOrSlash()
{
    const QString root = QFile::decodeName(PpsObject::root());
    return root.isEmpty() ? QStringLiteral("/") : root;
}

Finding examineRoot()
{
    const QString subject = QStringLiteral("settings root");
    const QFileInfo root(rootOrSlash());
    const QString source =
        *PpsObject::root() == '\0' ? QStringLiteral("ZEL_PPS_ROOT is not set") : QStringLiteral("from ZEL_PPS_ROOT");
    const QString text = root.filePath() + QLatin1String(", ") + source;
    if (!root.exists()) {
        return {Finding::Note, subject, text + QLatin1String("; it does not exist"),
                QStringLiteral("the first 'device set' creates it")};
    }
    if (!root.isDir() || !root.isReadable() || !root.isExecutable()) {
        return {Finding::Wrong, subject, text + QLatin1String("; it is not a directory that can be read"),
                QStringLiteral("set ZEL_PPS_ROOT to a directory")};
    }
    return {Finding::Good, subject, text, {}};
}

Finding examineObject(const QString& path)
{
    const SettingsObject object(path);
    const QString subject = QStringLiteral("settings object");
    switch (object.state()) {
    case SettingsObject::Readable:
        return {Finding::Good, subject, PpsObject::filePath(path), {}};
    case SettingsObject::Missing:
        return {Finding::Note, subject, PpsObject::filePath(path) + QLatin1String(": missing"), {}};
    case SettingsObject::Torn:
        return {Finding::Wrong, subject, object.error(), QStringLiteral("'device set --replace' overwrites it")};
    case SettingsObject::Unreadable:
        break;
    }
    return {Finding::Wrong, subject, object.error(), QStringLiteral("make it a readable file")};
}

// The default of a setting that is not set, and the reason.
QString fallback(const QString& key)
{
    if (key == Assignments::hourFormat()) {
        return QStringLiteral("12, the default");
    }
    if (key == Assignments::timeZone()) {
        return QStringLiteral("none; texts with a zone show GMT");
    }
    const char* const variable = system::LocaleName::variable();
    return variable == nullptr ? QStringLiteral("C, as neither LC_ALL, LC_TIME nor LANG is set")
                               : Device::region().name() + QStringLiteral(", from %1").arg(QLatin1String(variable));
}

QString example(const QString& key)
{
    static const QMap<QString, QString> values = {{Assignments::hourFormat(), QStringLiteral("24")},
                                                  {Assignments::timeZone(), QStringLiteral("Europe/Berlin")},
                                                  {Assignments::region(), QStringLiteral("de_DE")}};
    const QString option = isDevice() ? QString() : QStringLiteral("--create ");
    return QStringLiteral("'device set %1%2=%3' sets it").arg(option, key, values.value(key));
}

Finding examineSetting(const QString& key)
{
    const Place place = placeOf(key);
    const SettingsObject object(place.object);
    const QVariant value = object.attributes().value(place.attribute);
    if (!value.isValid()) {
        return {Finding::Note, key, fallback(key), example(key)};
    }
    const QString source = QStringLiteral("%1, from %2").arg(value.toString(), PpsObject::filePath(place.object));
    const QString error = Assignments::error(key, value.toString());
    return error.isEmpty() ? Finding{Finding::Good, key, source, {}}
                           : Finding{Finding::Wrong, key, source + QLatin1String(": ") + error, example(key)};
}

} // namespace

std::optional<QString> Device::get(const QString& key)
{
    const SettingsObject object = objectOf(key);
    const QVariant value = object.attributes().value(placeOf(key).attribute);
    return value.isValid() ? std::make_optional(value.toString()) : std::nullopt;
}

QString Device::howToChange()
{
    return QStringLiteral("They are stored below the directory ZEL_PPS_ROOT (default: /). All values are checked\n"
                          "before the first is written. Other attributes of a settings object are kept. An\n"
                          "object that cannot be decoded is overwritten only with --replace. Without a settings\n"
                          "directory, --create is required.");
}

void Device::set(const QMap<QString, QString>& values, Permissions permissions)
{
    if (!permissions.create) {
        requireDevice(values.keys());
    }
    // All are checked before the first is written.
    for (const QString& key : values.keys()) {
        const SettingsObject object(placeOf(key).object);
        if (object.state() == SettingsObject::Torn && !permissions.replace) {
            throw Failure(object.error() + QStringLiteral("; --replace overwrites it"));
        }
        objectOf(key, permissions.replace);
    }
    for (auto value = values.begin(); value != values.end(); ++value) {
        const Place place = placeOf(value.key());
        const SettingsLock lock(place.object);
        const SettingsObject object = objectOf(value.key(), permissions.replace);
        QVariantMap attributes = object.attributes();
        attributes[place.attribute] = encoded(value.key(), value.value());
        object.write(attributes);
    }
}

void Device::unset(const QStringList& keys)
{
    for (const QString& key : keys) {
        if (SettingsObject(placeOf(key).object).state() == SettingsObject::Missing) {
            continue;
        }
        const SettingsLock lock(placeOf(key).object);
        const SettingsObject object = objectOf(key);
        QVariantMap attributes = object.attributes();
        if (attributes.remove(placeOf(key).attribute) > 0) {
            object.write(attributes);
        }
    }
}

QLocale Device::region()
{
    return zel::system::LocaleHandler(zel::system::LocaleType::Region).locale();
}

void Device::requireReadable()
{
    for (const QString& key : Assignments::keys()) {
        get(key);
    }
}

void Device::useEmpty(const QString& directory)
{
    qputenv("ZEL_PPS_ROOT", QFile::encodeName(directory));
}

void Device::useRegion(const QString& name, const QString& directory)
{
    // Links to the other objects, so that they are followed in place.
    for (const QString& key : {Assignments::hourFormat(), Assignments::timeZone()}) {
        const QString object = placeOf(key).object;
        const QString link = directory + object;
        if (!QDir().mkpath(QFileInfo(link).path()) ||
            !QFile::link(QFileInfo(PpsObject::filePath(object)).absoluteFilePath(), link)) {
            throw Failure(QStringLiteral("cannot create '%1'").arg(link));
        }
    }
    useEmpty(directory);
    set({{Assignments::region(), name}}, {});
}

void Device::keepLocalTime()
{
    const QByteArray id = QTimeZone::systemTimeZoneId();
    const QString link = QFile::symLinkTarget(QStringLiteral("/etc/localtime"));
    if (qEnvironmentVariableIsEmpty("TZ") && link.endsWith(QLatin1String("/zoneinfo/") + QString::fromLatin1(id))) {
        qputenv("TZ", id);
    }
}

QList<Finding> Device::examine()
{
    QList<Finding> findings = {examineRoot()};
    for (const QString& key : Assignments::keys()) {
        findings.append(examineObject(placeOf(key).object));
    }
    for (const QString& key : Assignments::keys()) {
        findings.append(examineSetting(key));
    }
    return findings;
}

} // namespace zel::tool
