// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_HOST_SETTINGS_H
#define ZEL_HOST_SETTINGS_H

#include <memory>
#include <QtCore/QLocale>
#include <zel/host/Setting.h>

/**
 * The settings of a Linux host. The library is static: each of its users in a process has separate settings and a
 * separate connection to the session bus. Call every function on any thread.
 */
namespace zel::host {

/** A reporter that drops messages, for users of source(). */
inline void ignore(QtMsgType /*type*/, const QString& /*text*/) {}

/** Portal timeout in milliseconds; keeps the total wait in clock() under 100 ms. */
constexpr int portalTimeoutMs = 80;

/**
 * The clock, 12 or 24: from the settings portal; fallback: that of the region's time pattern. Waits for the portal up
 * to the timeout, and uses a later answer when it arrives.
 */
std::unique_ptr<Setting> clock(Reporter reporter, int timeoutMs = portalTimeoutMs);

/** The identifier of the time zone in ICU, from TZ or the system's local-time link; empty if unknown. */
std::unique_ptr<Setting> timeZone(Reporter reporter);

/**
 * The name of the environment's locale for dates and times. Changes are the application's locale change events; they
 * arrive through the event loop of the setting's thread.
 */
std::unique_ptr<Setting> region(Reporter reporter);

/** The locale of region(), at the cost of reading the environment. */
QLocale regionNow();

/**
 * The environment variables that override the clock and the time zone of the host for one process. A setting that is
 * created while its variable is set has that value; no value if the variable is empty. Ignored in a process with raised
 * privileges.
 */
constexpr const char* clockVariable = "ZEL_HOST_CLOCK";
constexpr const char* timeZoneVariable = "ZEL_HOST_TIME_ZONE";

} // namespace zel::host

#endif
