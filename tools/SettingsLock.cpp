#include "SettingsLock.h"

#include "Failure.h"
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
constexpr int patience = 10000;
constexpr unsigned long pause = 5;

} // namespace

SettingsLock::SettingsLock(const QString& path) : m_umask(::umask(readableByAll))
{
    const QString directory = QFileInfo(PpsObject::filePath(path)).path();
    QDir().mkpath(directory);
    // Where there is no directory, or one that cannot be locked, the write says what is wrong.
    m_directory = ::open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    QElapsedTimer timer;
    timer.start();
    while (::flock(m_directory, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        if (timer.hasExpired(patience)) {
            ::close(m_directory);
            ::umask(m_umask);
            throw Failure(directory + QStringLiteral(": somebody else keeps it locked"));
        }
        QThread::msleep(pause);
    }
}

SettingsLock::~SettingsLock()
{
    ::close(m_directory);
    ::umask(m_umask);
}

} // namespace zel::tool
