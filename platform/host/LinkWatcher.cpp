// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "LinkWatcher.h"

#include "Connection.h"
#include <QtCore/QFileInfo>

namespace zel::host {

LinkWatcher::LinkWatcher(const QString& link, Reporter reporter) : m_link(link), m_reporter(reporter), m_poll(this)
{
    // Queued: a watch needs the event loop of the thread, which may not run yet.
    QMetaObject::invokeMethod(this, "start", Qt::QueuedConnection);
}

void LinkWatcher::start()
{
    constexpr const char* signature = "void zel::host::LinkWatcher::start()";
    // Watches the directory, because a watch on the link would be on its target.
    m_watcher = std::make_unique<QFileSystemWatcher>(QStringList{QFileInfo(m_link).absolutePath()});
    checkConnection(m_reporter, connect(m_watcher.get(), SIGNAL(directoryChanged(QString)), this, SIGNAL(changed())),
                    signature, "QFileSystemWatcher::directoryChanged()");
    if (m_watcher->directories().isEmpty()) {
        m_reporter(QtWarningMsg, QStringLiteral("%1 cannot watch the directory and looks every second : \"%2\"")
                                     .arg(QLatin1String(signature), m_link));
        checkConnection(m_reporter, connect(&m_poll, SIGNAL(timeout()), this, SIGNAL(changed())), signature,
                        "QTimer::timeout()");
        m_poll.start(1000);
    }
    Q_EMIT changed(); // it may have been replaced before
}

} // namespace zel::host
