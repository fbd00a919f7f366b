#ifndef ZEL_PPSWATCHER_H
#define ZEL_PPSWATCHER_H

#include "PpsContents.h"
#include <memory>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFileSystemWatcher>
#include <QtCore/QObject>
#include <QtCore/QStringList>

namespace zel {

/**
 * Follows an object's file, whatever is done to it and to the directories above it.
 *
 * A file that is rewritten in place is empty for a moment. So the first sign of a change starts a row of looks; it ends
 * when nothing was done to the file between two looks, or with a whole object after a while where changes never cease.
 *
 * Everything starts with the first turn of the thread's event loop. Until then nothing is watched, so that neither
 * a thread without an event loop nor an application object that is created later is a reason for a warning.
 */
class PpsWatcher : public QObject
{
    Q_OBJECT

public:
    PpsWatcher(const QByteArray& file, QObject* parent);

    /** What the last look found. */
    const PpsContents& contents() const { return m_contents; }

Q_SIGNALS:
    /** A row of looks has ended. The watcher may be deleted from here. */
    void settled();

private Q_SLOTS:
    void start();
    void touch();
    void look();
    void poll();

private:
    void watch();

    const QByteArray m_file;
    const QStringList m_trail;
    std::unique_ptr<QFileSystemWatcher> m_watcher;
    PpsContents m_contents;
    QElapsedTimer m_row; // valid from the first look of a row to the last
    bool m_polling = false;
};

} // namespace zel

#endif
