// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_SETTINGSLOCK_H
#define ZEL_TOOL_SETTINGSLOCK_H

#include <QtCore/QString>
#include <sys/types.h>

namespace zel::tool {

/**
 * Prevents other holders of the lock from changing a settings object. Files created meanwhile are readable by every
 * user, regardless of the umask, as settings are for all users.
 *
 * The lock is on the object's directory, which is created if missing. It leaves no file, and ends with the process.
 * Throws a Failure after a timeout of ten seconds.
 */
class SettingsLock
{
    Q_DISABLE_COPY_MOVE(SettingsLock)

public:
    explicit SettingsLock(const QString& path);
    ~SettingsLock();

private:
    mode_t m_umask;
    int m_directory = -1;
};

} // namespace zel::tool

#endif
