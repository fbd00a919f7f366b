// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "Inotify.h"

#include "PpsWatcher.h"
#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QPointer>
#include <sys/inotify.h>
#include <unistd.h>

namespace zel {

namespace {

// All watches of an inode are one watch, so its masks are combined.
constexpr uint32_t selfMask = IN_MASK_ADD | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF;
constexpr uint32_t fileMask = selfMask | IN_MODIFY;
constexpr uint32_t directoryMask = selfMask | IN_CREATE | IN_DELETE | IN_MOVE;

} // namespace

Inotify::Inotify()
{
    moveToThread(nullptr);
}

Inotify& Inotify::instance()
{
    // Never destroyed: threads may use it while the process destroys its static objects.
    static Inotify* const inotify = std::make_unique<Inotify>().release();
    return *inotify;
}

Inotify::Watch Inotify::add(const QByteArray& path, const QByteArray& name, PpsWatcher* watcher)
{
    const std::lock_guard lock(m_mutex);
    if (m_events < 0) {
        m_events = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    }
    if (m_mounts < 0) {
        m_mounts = ::open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC);
    }
    const int id =
        m_events < 0 ? -1 : ::inotify_add_watch(m_events, path.constData(), name.isEmpty() ? fileMask : directoryMask);
    if (id < 0) {
        return {id, errno, {}};
    }
    m_listeners.insert({id, {name, watcher}});
    attach();
    return {id, 0, name};
}

void Inotify::remove(const Watch& watch, PpsWatcher* watcher)
{
    const std::lock_guard lock(m_mutex);
    const auto [first, last] = m_listeners.equal_range(watch.id);
    const auto found = std::find_if(first, last, [&](const auto& entry) {
        return entry.second.watcher == watcher && entry.second.name == watch.name;
    });
    m_listeners.erase(found);
    if (m_listeners.count(watch.id) == 0) {
        ::inotify_rm_watch(m_events, watch.id);
    }
}

bool Inotify::followsMounts()
{
    const std::lock_guard lock(m_mutex);
    return m_mounts >= 0;
}

void Inotify::attach()
{
    static thread_local std::unique_ptr<QSocketNotifier> events;
    static thread_local std::unique_ptr<QSocketNotifier> mounts;
    // Notifiers stop when it is gone, for example when the process creates another application object.
    static thread_local QPointer<QAbstractEventDispatcher> dispatcher;
    if (!dispatcher) {
        events.reset();
        mounts.reset();
        dispatcher = QAbstractEventDispatcher::instance();
    }
    if (!events) {
        events = listenTo(m_events, QSocketNotifier::Read, SLOT(onEvents()));
    }
    if (!mounts && m_mounts >= 0) {
        mounts = listenTo(m_mounts, QSocketNotifier::Exception, SLOT(onMount()));
    }
}

std::unique_ptr<QSocketNotifier> Inotify::listenTo(int descriptor, QSocketNotifier::Type type, const char* slot)
{
    auto notifier = std::make_unique<QSocketNotifier>(descriptor, type);
    if (!connect(notifier.get(), SIGNAL(activated(int)), this, slot, Qt::DirectConnection)) {
        qCritical("zel::PpsObject cannot hear of changed files");
    }
    return notifier;
}

void Inotify::onEvents()
{
    const std::lock_guard lock(m_mutex);
    alignas(inotify_event) std::array<char, 4096> buffer;
    for (;;) {
        const ssize_t size = ::read(m_events, buffer.data(), buffer.size());
        if (size <= 0) {
            return;
        }
        for (const char* next = buffer.data(); next < buffer.data() + size;) {
            const auto& event = *reinterpret_cast<const inotify_event*>(next);
            deliver(event);
            next += sizeof(inotify_event) + event.len;
        }
    }
}

void Inotify::deliver(const inotify_event& event)
{
    if ((event.mask & IN_Q_OVERFLOW) != 0) {
        notifyAll();
        return;
    }
    const auto [first, last] = m_listeners.equal_range(event.wd);
    for (auto entry = first; entry != last; ++entry) {
        const Listener& listener = entry->second;
        if (event.len == 0 || listener.name.isEmpty() || listener.name == event.name) {
            listener.watcher->notify();
        }
    }
}

void Inotify::onMount()
{
    const std::lock_guard lock(m_mutex);
    notifyAll();
}

void Inotify::notifyAll()
{
    for (const auto& entry : m_listeners) {
        entry.second.watcher->notify();
    }
}

} // namespace zel
