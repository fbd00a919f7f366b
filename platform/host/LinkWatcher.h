// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_HOST_LINKWATCHER_H
#define ZEL_HOST_LINKWATCHER_H

#include <memory>
#include <QtCore/QFileSystemWatcher>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>
#include <zel/host/Setting.h>

namespace zel::host {

/**
 * Reports, through the event loop of the thread that created it, that a symbolic link may have been replaced. If its
 * directory cannot be watched, writes a message and reports every second.
 */
class LinkWatcher : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LinkWatcher)

public:
    LinkWatcher(const QString& link, Reporter reporter);
    ~LinkWatcher() override = default;

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void start();

private:
    const QString m_link;
    const Reporter m_reporter;
    std::unique_ptr<QFileSystemWatcher> m_watcher;
    QTimer m_poll; // if the directory cannot be watched
};

} // namespace zel::host

#endif
