#ifndef ZEL_HOST_SETTINGS_H
#define ZEL_HOST_SETTINGS_H

#include <memory>
#include <QtCore/QLocale>
#include <zel/host/Setting.h>

/**
 * The settings of a Linux host. The library is a static one: each of its users in a process has settings of its own,
 * and so a connection to the session bus of its own. All functions may be called on any thread.
 */
namespace zel::host {

/** A reporter for those who ask source() instead. */
inline void ignore(QtMsgType /*type*/, const QString& /*text*/) {}

/** Short enough for a caller of clock() to wait for less than 100 ms altogether. */
constexpr int portalTimeoutMs = 80;

/**
 * The clock, 12 or 24: what the settings portal says and, as long as it does not say, the clock of the region's own
 * time pattern. It waits for the portal no longer than the timeout, and takes a later answer when it comes.
 */
std::unique_ptr<Setting> clock(Reporter reporter, int timeoutMs = portalTimeoutMs);

/** The identifier of the time zone, as ICU knows it, from TZ or the system's local-time link; empty where it is
 * unknown. */
std::unique_ptr<Setting> timeZone(Reporter reporter);

/**
 * The name of the locale that the environment has for dates and times. Changes are those of which the application is
 * told; they arrive through the event loop of the thread that the setting belongs to.
 */
std::unique_ptr<Setting> region(Reporter reporter);

/** The locale that region() names, at the cost of a look at the environment. */
QLocale regionNow();

/**
 * The environment variables that choose the clock and the time zone for one process, in the place of the host's: a
 * setting that is made while its variable is set has that value, and none while it is empty. A process that runs with
 * raised privileges takes no notice of them.
 */
constexpr const char* clockVariable = "ZEL_HOST_CLOCK";
constexpr const char* timeZoneVariable = "ZEL_HOST_TIME_ZONE";

} // namespace zel::host

#endif
