#include "settings/HostTimeZone.h"

#include "bridge/String.h"
#include <QtCore/QFileInfo>
#include <QtCore/QTimeZone>
#include <unicode/timezone.h>

namespace zel::utility::i18n {

namespace {

bool isKnown(const icu::TimeZone& zone)
{
    return zone != icu::TimeZone::getUnknown();
}

// TZ may name a file of the time zone database; ICU wants the name of the zone.
QString withoutDirectory(const QString& id)
{
    constexpr QLatin1String directory("/zoneinfo/");
    const auto start = id.lastIndexOf(directory);
    return start < 0 ? id : id.mid(start + directory.size());
}

QString systemId()
{
    const QString id = withoutDirectory(QString::fromLatin1(QTimeZone::systemTimeZoneId()));
    const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createTimeZone(String::toICU(id)));
    if (isKnown(*zone)) {
        return id;
    }
    // A rule such as "CET-1CEST" is no identifier. ICU finds a zone that keeps it.
    const std::unique_ptr<icu::TimeZone> host(icu::TimeZone::detectHostTimeZone());
    icu::UnicodeString hostId;
    return host && isKnown(*host) ? String::toQt(host->getID(hostId)) : QString();
}

} // namespace

HostTimeZone::HostTimeZone(const QString& link) : m_link(link), m_variable(qgetenv("TZ")), m_id(systemId())
{
    // A watch needs the event loop of the thread, which may not be there yet.
    QMetaObject::invokeMethod(this, "watch", Qt::QueuedConnection);
}

QVariant HostTimeZone::value() const
{
    const QByteArray variable = qgetenv("TZ");
    const std::lock_guard lock(m_mutex);
    if (variable != m_variable) {
        m_variable = variable;
        m_id = systemId();
    }
    return m_id;
}

QString HostTimeZone::source() const
{
    return qEnvironmentVariableIsEmpty("TZ") ? m_link : QStringLiteral("TZ");
}

void HostTimeZone::watch()
{
    // The directory: the link itself is replaced, and a watch on it would be one on the zone's file.
    m_watcher = std::make_unique<QFileSystemWatcher>(QStringList{QFileInfo(m_link).absolutePath()});
    connect(m_watcher.get(), SIGNAL(directoryChanged(QString)), this, SLOT(look()));
    look();
}

void HostTimeZone::look()
{
    {
        const std::lock_guard lock(m_mutex);
        m_variable = qgetenv("TZ");
        m_id = systemId();
    }
    Q_EMIT changed();
}

} // namespace zel::utility::i18n
