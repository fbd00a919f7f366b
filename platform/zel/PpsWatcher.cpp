#include "PpsWatcher.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTimer>
#include <utility>

namespace zel {

namespace {

constexpr int lookInterval = 20;
constexpr int longestRow = 200;
constexpr int pollInterval = 1000;

// Every path from the topmost directory down to the file itself.
QStringList trailOf(const QString& file)
{
    QStringList trail;
    QString path = QDir::cleanPath(QFileInfo(file).absoluteFilePath());
    while (!path.isEmpty() && path != QLatin1String("/")) {
        trail.prepend(path);
        path.truncate(path.lastIndexOf(QLatin1Char('/')));
    }
    trail.prepend(QStringLiteral("/"));
    return trail;
}

} // namespace

PpsWatcher::PpsWatcher(const QByteArray& file, QObject* parent)
    : QObject(parent),
      m_file(file),
      m_trail(trailOf(QFile::decodeName(file)))
{
    QMetaObject::invokeMethod(this, "start", Qt::QueuedConnection);
}

void PpsWatcher::start()
{
    m_watcher = std::make_unique<QFileSystemWatcher>(this);
    connect(m_watcher.get(), SIGNAL(fileChanged(QString)), this, SLOT(touch()));
    connect(m_watcher.get(), SIGNAL(directoryChanged(QString)), this, SLOT(touch()));
    touch();
}

void PpsWatcher::touch()
{
    if (!m_row.isValid()) {
        look();
    }
}

void PpsWatcher::look()
{
    watch();
    // Read after the watches are set, so that no change falls between.
    const PpsContents previous = std::exchange(m_contents, PpsContents::read(m_file));
    const bool first = !m_row.isValid();
    if (first) {
        m_row.start();
    }
    const bool quiet = !first && m_contents == previous && m_contents.stamp == previous.stamp;
    if (!quiet && !(m_row.hasExpired(longestRow) && m_contents.isWhole())) {
        // Not a member timer: one that is still active could not be destroyed on another thread, as at process exit.
        QTimer::singleShot(lookInterval, this, SLOT(look()));
        return;
    }
    m_row.invalidate();
    Q_EMIT settled();
}

void PpsWatcher::watch()
{
    if (m_polling) {
        return;
    }
    // Anew every time: a watch stays with the old file when another one is renamed over it.
    const QStringList old = m_watcher->files() + m_watcher->directories();
    if (!old.isEmpty()) {
        m_watcher->removePaths(old);
    }
    // Top down: what appears below a watched directory later is noticed. All but the lowest may be blind spots.
    bool blind = false;
    for (const QString& path : m_trail) {
        if (!QFileInfo::exists(path)) {
            break;
        }
        blind = !QFileInfo(path).isReadable();
        if (!blind && !m_watcher->addPath(path)) {
            // The system has no more watches to give, unless the path has gone just now.
            blind = QFileInfo::exists(path);
            break;
        }
    }
    if (blind) {
        m_polling = true;
        QTimer::singleShot(pollInterval, this, SLOT(poll()));
    }
}

void PpsWatcher::poll()
{
    QTimer::singleShot(pollInterval, this, SLOT(poll()));
    touch();
}

} // namespace zel
