#ifndef ZEL_TOOL_SETTINGSLOCK_H
#define ZEL_TOOL_SETTINGSLOCK_H

#include <QtCore/QString>
#include <sys/types.h>

namespace zel::tool {

/**
 * Keeps others that take the lock from changing a settings object while this one lives. What is created meanwhile can
 * be read by every user, whatever the umask: settings are for all.
 *
 * The lock is on the object's directory, which is made where it is missing. It leaves no file, and ends with the
 * process. A Failure where it cannot be had in ten seconds.
 */
class SettingsLock
{
public:
    explicit SettingsLock(const QString& path);
    ~SettingsLock();
    SettingsLock(const SettingsLock&) = delete;
    SettingsLock& operator=(const SettingsLock&) = delete;

private:
    mode_t m_umask;
    int m_directory = -1;
};

} // namespace zel::tool

#endif
