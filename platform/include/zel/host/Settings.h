// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_HOST_SETTINGS_H
#define ZEL_HOST_SETTINGS_H

#include <memory>
#include <QtCore/QLocale>
#include <zel/host/Setting.h>

/**
 * The settings of a Linux host. The library is static: each binary that links it has its own settings and its own
 * connection to the session bus. All functions are thread-safe.
 */
namespace zel::host {

/** A reporter that drops messages, for users of source(). */
inline void ignore(QtMsgType /*type*/, const QString& /*text*/) {}

/** Portal timeout in milliseconds; keeps the total wait in clock() under 100 ms. */
constexpr int portalTimeoutMs = 80;

/**
 * Returns the clock, 12 or 24, from the settings portal; fallback: the clock of the region's time pattern. Waits for
 * the portal up to the timeout, and uses a later answer when it arrives. Without an application
 * object when it is created, it never reports a change of the region.
 */
std::unique_ptr<Setting> clock(Reporter reporter, int timeoutMs = portalTimeoutMs);

/** Returns ICU's identifier of the time zone, from TZ; fallback: /etc/localtime. Its value is empty if unknown. */
std::unique_ptr<Setting> timeZone(Reporter reporter);

/**
 * Returns the name of the environment's locale for dates and times. It changes with the application's locale change
 * events, which arrive through the event loop of the setting's thread. Without an application object when it is
 * created, it never emits changed(), even if one is created later.
 */
std::unique_ptr<Setting> region(Reporter reporter);

/** Returns the locale of region() at the cost of reading the environment. */
QLocale regionNow();

/**
 * Environment variables that override the clock and the time zone of the host for one process. A setting created while
 * its variable is set has that value, or no value if the variable is empty. Ignored in a process with raised
 * privileges.
 */
constexpr const char* clockVariable = "ZEL_HOST_CLOCK";
constexpr const char* timeZoneVariable = "ZEL_HOST_TIME_ZONE";

} // namespace zel::host

#endif
