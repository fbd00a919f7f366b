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
 * The one inotify instance of the process, for the watchers of all threads; a user has few instances. It also notices
 * mounts, of which inotify does not tell.
 *
 * Every thread that added a watch delivers events to the watchers of all threads through its event loop.
 */
class Inotify : public QObject
{
    Q_OBJECT

public:
    /** What a watcher listens to: an inode or, if the name is not empty, that entry of a directory. */
    struct Watch
    {
        int id;    ///< negative if there is no watch
        int error; ///< why not, as an errno
        QByteArray name;
    };

    Inotify();

    static Inotify& instance();

    /** Tells of the changes of an inode, or of an entry of a directory, but of mounts only if followsMounts(). */
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

    /** Has the event loop of the calling thread deliver events. */
    void attach();
    std::unique_ptr<QSocketNotifier> listenTo(int descriptor, QSocketNotifier::Type type, const char* slot);
    void deliver(const inotify_event& event);
    void notifyAll();

    std::mutex m_mutex; // for what is below
    int m_events = -1;
    int m_mounts = -1;
    std::multimap<int, Listener> m_listeners; // by the watch
};

} // namespace zel

#endif
