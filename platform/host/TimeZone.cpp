// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "TimeZone.h"

#include "Connection.h"
#include "LinkWatcher.h"
#include <QtCore/QFile>
#include <QtCore/QStringList>
#include <string>
#include <sys/stat.h>
#include <unicode/timezone.h>

namespace zel::host {

namespace {

bool isKnown(const icu::TimeZone& zone)
{
    return zone != icu::TimeZone::getUnknown();
}

constexpr QLatin1String directory("/zoneinfo/");

bool isInDatabase(const QString& path)
{
    return path.contains(directory);
}

// The name of a file within the time zone database; other names unchanged.
QString withoutDirectory(const QString& id)
{
    const auto start = id.lastIndexOf(directory);
    return start < 0 ? id : id.mid(start + directory.size());
}

// The link and its targets: a file of the database, perhaps through other links.
QStringList chainOf(const QString& link)
{
    constexpr int mostLinks = 8;
    QStringList chain(link);
    for (int i = 0; i < mostLinks && !isInDatabase(chain.last()); ++i) {
        const QString target = QFile::symLinkTarget(chain.last());
        if (target.isEmpty()) {
            break;
        }
        chain.append(target);
    }
    return chain;
}

QString linkedId(const QString& link)
{
    const QString file = chainOf(link).last();
    return isInDatabase(file) ? withoutDirectory(file) : QString();
}

QString idOf(const QByteArray& variable, const QString& link)
{
    QString id = variable.isEmpty() ? linkedId(link) : withoutDirectory(QFile::decodeName(variable));
    const std::unique_ptr<icu::TimeZone> zone(
        icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(id.toStdString())));
    if (isKnown(*zone)) {
        return id;
    }
    // A rule such as "CET-1CEST" is not an identifier, and a copied file has none. ICU finds an equivalent zone.
    const std::unique_ptr<icu::TimeZone> host(icu::TimeZone::detectHostTimeZone());
    icu::UnicodeString hostId;
    std::string text;
    return host && isKnown(*host) ? QString::fromStdString(host->getID(hostId).toUTF8String(text)) : QString();
}

} // namespace

TimeZone::TimeZone(Reporter reporter, const QString& link) : m_reporter(reporter), m_link(link) {}

QVariant TimeZone::value() const
{
    const QByteArray current = stamp();
    const std::lock_guard lock(m_mutex);
    if (current != m_stamp) {
        m_stamp = current;
        m_id = idOf(qgetenv("TZ"), m_link);
    }
    return m_id;
}

QString TimeZone::source() const
{
    return qEnvironmentVariableIsEmpty("TZ") ? m_link : QStringLiteral("TZ");
}

std::unique_ptr<QObject> TimeZone::listen()
{
    auto watcher = std::make_unique<LinkWatcher>(m_link, m_reporter);
    checkConnection(m_reporter,
                    connect(watcher.get(), SIGNAL(changed()), this, SIGNAL(changed()), Qt::DirectConnection),
                    "std::unique_ptr<QObject> zel::host::TimeZone::listen()", "LinkWatcher::changed()");
    return watcher;
}

QByteArray TimeZone::stamp() const
{
    QByteArray stamp;
    const auto append = [&stamp](const auto& item) {
        stamp.append(reinterpret_cast<const char*>(&item), static_cast<int>(sizeof(item)));
    };
    for (const QString& name : chainOf(m_link)) {
        const QByteArray path = QFile::encodeName(name);
        struct stat status = {};
        ::lstat(path.constData(), &status);
        stamp += path; // a link replaced within a tick of the clock may have the same status
        append(status.st_dev);
        append(status.st_ino);
        append(status.st_mtim);
        append(status.st_ctim);
    }
    return stamp + qgetenv("TZ");
}

} // namespace zel::host
