#include "settings/LinkWatcher.h"

#include "bridge/Diagnostic.h"
#include <QtCore/QFileInfo>

namespace zel::utility::i18n {

LinkWatcher::LinkWatcher(const QString& link) : m_link(link), m_poll(this)
{
    // Queued: a watch needs the event loop of the thread, which may not run yet.
    QMetaObject::invokeMethod(this, "start", Qt::QueuedConnection);
}

void LinkWatcher::start()
{
    constexpr const char* signature = "void zel::utility::i18n::LinkWatcher::start()";
    // The directory: the link itself is replaced, and a watch on it would be one on its target.
    m_watcher = std::make_unique<QFileSystemWatcher>(QStringList{QFileInfo(m_link).absolutePath()});
    Diagnostic::checkConnection(connect(m_watcher.get(), SIGNAL(directoryChanged(QString)), this, SIGNAL(changed())),
                                signature, "QFileSystemWatcher::directoryChanged()");
    if (m_watcher->directories().isEmpty()) {
        Diagnostic::write(QtWarningMsg, signature, "cannot watch the directory and looks every second :", m_link);
        Diagnostic::checkConnection(connect(&m_poll, SIGNAL(timeout()), this, SIGNAL(changed())), signature,
                                    "QTimer::timeout()");
        m_poll.start(1000);
    }
    Q_EMIT changed(); // it may have been replaced before
}

} // namespace zel::utility::i18n
