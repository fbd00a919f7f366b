// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "PpsWatcher.h"

#include <array>
#include <cerrno>
#include <climits>
#include <QtCore/QList>
#include <QtCore/QTimer>
#include <unistd.h>
#include <utility>

namespace zel {

namespace {

constexpr int pollIntervalMs = 20;
constexpr int longestSeriesMs = 200;
constexpr int retryIntervalMs = 1000;

QByteArray linkTarget(const QByteArray& path)
{
    std::array<char, PATH_MAX> target{};
    const ssize_t size = ::readlink(path.constData(), target.data(), target.size());
    return size < 0 ? QByteArray() : QByteArray(target.data(), static_cast<int>(size));
}

} // namespace

PpsWatcher::PpsWatcher(const QByteArray& file, QObject* parent) : QObject(parent), m_file(file)
{
    notify();
}

PpsWatcher::~PpsWatcher()
{
    for (const Inotify::Watch& watch : m_watches) {
        Inotify::instance().remove(watch, this);
    }
}

void PpsWatcher::notify()
{
    if (!m_notified.exchange(true)) {
        QMetaObject::invokeMethod(this, "start", Qt::QueuedConnection);
    }
}

void PpsWatcher::start()
{
    m_notified = false;
    if (!m_settling.isValid()) {
        poll();
    }
}

void PpsWatcher::poll()
{
    const bool isWatched = watch();
    // Read after the watches are set, so that no change is missed.
    const PpsContents previous = std::exchange(m_contents, PpsContents::read(m_file));
    const bool isFirst = !m_settling.isValid();
    if (isFirst) {
        m_settling.start();
    }
    const bool isQuiet = !isFirst && m_contents == previous && m_contents.stamp == previous.stamp;
    if (!isQuiet && !(m_settling.hasExpired(longestSeriesMs) && m_contents.isWhole())) {
        // Not a member timer: an active one cannot be destroyed on another thread, as at process exit.
        QTimer::singleShot(pollIntervalMs, this, SLOT(poll()));
        return;
    }
    m_settling.invalidate();
    const bool mayPass = !m_contents.error.isEmpty() && !m_contents.settled;
    if ((!isWatched || mayPass) && !std::exchange(m_retrying, true)) {
        QTimer::singleShot(retryIntervalMs, this, SLOT(retry()));
    }
    Q_EMIT settled();
}

void PpsWatcher::retry()
{
    m_retrying = false;
    start();
}

bool PpsWatcher::watch()
{
    const std::vector<Inotify::Watch> previous = std::exchange(m_watches, {});
    const bool isComplete = watchTrail();
    // Removed last, so that a watch that stays is not interrupted.
    for (const Inotify::Watch& watch : previous) {
        Inotify::instance().remove(watch, this);
    }
    return isComplete;
}

// Follows the path as the system does, and watches each directory before looking up a name in it, so that no change is
// missed.
bool PpsWatcher::watchTrail()
{
    constexpr int mostLinks = 40; // the limit of the system
    bool isComplete = true;
    int links = 0;
    QByteArray directory = "/";
    QList<QByteArray> names = m_file.split('/');
    while (!names.isEmpty() && links <= mostLinks) {
        const QByteArray name = names.takeFirst();
        if (name.isEmpty() || name == ".") {
            continue;
        }
        isComplete = add(directory, name) && isComplete;
        const QByteArray path = (directory == "/" ? QByteArray() : directory) + '/' + name;
        const QByteArray target = linkTarget(path);
        if (target.isEmpty()) {
            directory = path;
            continue;
        }
        ++links;
        names = target.split('/') + names;
        if (target.startsWith('/')) {
            directory = "/";
        }
    }
    return add(directory, {}) && isComplete && Inotify::instance().followsMounts();
}

// If it does not exist, the watch of the directory above reports its creation.
bool PpsWatcher::add(const QByteArray& path, const QByteArray& name)
{
    const Inotify::Watch watch = Inotify::instance().add(path, name, this);
    if (watch.id >= 0) {
        m_watches.push_back(watch);
    }
    return watch.id >= 0 || watch.error == ENOENT || watch.error == ENOTDIR || watch.error == ELOOP;
}

} // namespace zel
