// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_INOTIFY_H
#define ZEL_INOTIFY_H

#include <map>
#include <memory>
#include <mutex>
#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QSocketNotifier>

struct inotify_event;

namespace zel {

class PpsWatcher;

/**
 * The inotify instance of the process, shared by the watchers of all threads, because a user may have only a few. Also
 * reports mounts, which inotify does not.
 *
 * Every thread that added a watch delivers events, through its event loop, to the watchers of all threads.
 */
class Inotify : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Inotify)

public:
    /** A watch: of an inode or, if the name is not empty, of that entry of a directory. */
    struct Watch
    {
        int id;    ///< negative if there is no watch
        int error; ///< the errno if there is no watch
        QByteArray name;
    };

    Inotify();

    static Inotify& instance();

    /** Reports changes of an inode or of an entry of a directory; mounts only if followsMounts(). */
    Watch add(const QByteArray& path, const QByteArray& name, PpsWatcher* watcher);
    void remove(const Watch& watch, PpsWatcher* watcher);
    bool followsMounts();

private Q_SLOTS:
    void onEvents();
    void onMount();

private:
    struct Listener
    {
        QByteArray name;
        PpsWatcher* watcher;
    };

    /** Delivers events through the event loop of the calling thread. */
    void attach();
    std::unique_ptr<QSocketNotifier> listenTo(int descriptor, QSocketNotifier::Type type, const char* slot);
    void deliver(const inotify_event& event);
    void notifyAll();

    std::mutex m_mutex; // guards the members below
    int m_events = -1;
    int m_mounts = -1;
    std::multimap<int, Listener> m_listeners; // by watch
};

} // namespace zel

#endif
