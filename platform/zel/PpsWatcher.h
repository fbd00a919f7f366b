#ifndef ZEL_PPSWATCHER_H
#define ZEL_PPSWATCHER_H

#include "Inotify.h"
#include "PpsContents.h"
#include <atomic>
#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <vector>

namespace zel {

/**
 * Follows an object's file, whatever is done to it, to the directories above it and to the links on the way there.
 *
 * A file that is rewritten in place is empty for a moment. So the first sign of a change starts a series of polls; it
 * ends when nothing was done to the file between two polls, or with a whole object after a while if changes never
 * cease. What cannot be watched, or not be opened for a reason that may pass, is polled once a second until that is
 * possible.
 *
 * Everything starts with the first turn of the thread's event loop. Until then nothing is watched, so that neither
 * a thread without an event loop nor an application object that is created later is a reason for a warning.
 */
class PpsWatcher : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PpsWatcher)

public:
    PpsWatcher(const QByteArray& file, QObject* parent);
    ~PpsWatcher() override;

    /** What the last poll found. */
    const PpsContents& contents() const { return m_contents; }

    /** There may be a change. Any thread may call. */
    void notify();

Q_SIGNALS:
    /** A series of polls has ended. The watcher may be deleted from here. */
    void settled();

private Q_SLOTS:
    void start();
    void retry();
    void poll();

private:
    /** Returns whether every change will be noticed. */
    bool watch();
    bool watchTrail();
    bool add(const QByteArray& path, const QByteArray& name);

    const QByteArray m_file;
    std::vector<Inotify::Watch> m_watches;
    PpsContents m_contents;
    QElapsedTimer m_settling; // valid from the first poll of a series to the last
    std::atomic<bool> m_notified{false};
    bool m_retrying = false;
};

} // namespace zel

#endif
