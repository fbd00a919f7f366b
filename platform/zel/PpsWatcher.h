// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

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
 * Follows an object's file, with the directories above it and the links on its path.
 *
 * A file that is rewritten in place is empty for a moment. Therefore the first sign of a change starts a series of
 * polls. It ends when the file did not change between two polls, or, if changes never cease, with a whole object after
 * a timeout. A file that cannot be watched, or cannot be opened for a reason that may pass, is polled once a second.
 *
 * Watching starts with the thread's event loop, so that neither a thread without one nor an application object that is
 * created later causes a warning.
 */
class PpsWatcher : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PpsWatcher)

public:
    PpsWatcher(const QByteArray& file, QObject* parent);
    ~PpsWatcher() override;

    /** The contents found by the last poll. */
    const PpsContents& contents() const { return m_contents; }

    /** Reports a possible change. Call on any thread. */
    void notify();

Q_SIGNALS:
    /** A series of polls has ended. The watcher may be deleted from here. */
    void settled();

private Q_SLOTS:
    void start();
    void retry();
    void poll();

private:
    /** Returns whether every change will be reported. */
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
