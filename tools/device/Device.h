// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_DEVICE_H
#define ZEL_TOOL_DEVICE_H

#include "device/Finding.h"
#include <optional>
#include <QtCore/QList>
#include <QtCore/QLocale>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTimeZone>

namespace zel::tool {

/** The settings of the device that the library follows. */
namespace Device {

/** The value of a setting; none if it is not set. Throws a Failure if it cannot be read. */
std::optional<QString> get(const QString& key);

/** A paragraph for the help on set() and unset(). */
QString howToChange();

/** Actions that set() must be allowed to take. */
struct Permissions
{
    bool replace = false; ///< overwrite an object that cannot be decoded
    bool create = false;  ///< create the settings directory
};

/** Changes settings, each object atomically and under a lock, and keeps its other attributes. */
void set(const QMap<QString, QString>& values, Permissions permissions);
void unset(const QStringList& keys);

/** The user's region locale. */
QLocale region();

/** The time zone; invalid if it is not set. Throws a Failure if it cannot be read. */
QTimeZone timeZone();

/** Throws a Failure if a setting cannot be read, so that no text depends on a wrong default. */
void requireReadable();

/** Simulates, for this process, a device with its settings in a directory, none of them set. */
void useEmpty(const QString& directory);

/** Changes the region for this process only. The change is kept in a directory. */
void useRegion(const QString& name, const QString& directory);

/**
 * Makes conversions of local time cheap where it is not a setting to follow: without TZ, the C library looks at
 * /etc/localtime each time. Local time stays the same.
 */
void keepLocalTime();

/** The state of the settings, and each setting with its source. */
QList<Finding> examine();

} // namespace Device

} // namespace zel::tool

#endif
