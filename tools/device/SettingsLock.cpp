// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "device/SettingsLock.h"

#include "terminal/Failure.h"
#include <cerrno>
#include <fcntl.h>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zel/PpsObject.h>

namespace zel::tool {

namespace {

constexpr mode_t readableByAll = 022;
constexpr int timeoutMs = 10000;
constexpr unsigned long pollIntervalMs = 5;

// Does not wait. Returns 0 or an errno.
int lock(int directory)
{
    return ::flock(directory, LOCK_EX | LOCK_NB) == 0 ? 0 : errno;
}

} // namespace

SettingsLock::SettingsLock(const QString& path) : m_umask(::umask(readableByAll))
{
    const QString directory = QFileInfo(PpsObject::filePath(path)).path();
    QDir().mkpath(directory);
    m_directory = ::open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    int error = m_directory < 0 ? errno : lock(m_directory);
    QElapsedTimer timer;
    timer.start();
    while (error == EWOULDBLOCK && !timer.hasExpired(timeoutMs)) {
        QThread::msleep(pollIntervalMs);
        error = lock(m_directory);
    }
    // If there is no directory, the write reports it.
    if (error != 0 && error != ENOENT && error != ENOTDIR) {
        ::close(m_directory);
        ::umask(m_umask);
        throw Failure(
            directory + QLatin1String(": ") +
            (error == EWOULDBLOCK ? QStringLiteral("another program holds the lock") : qt_error_string(error)));
    }
}

SettingsLock::~SettingsLock()
{
    ::close(m_directory);
    ::umask(m_umask);
}

} // namespace zel::tool
