// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "RegionCache.h"

#include <algorithm>
#include <cstdlib>
#include <mutex>
#include <optional>
#include <QtCore/QVariantMap>
#include <utility>
#include <zel/system/LocaleName.h>

namespace zel::system {

namespace {

constexpr const char* objectPath = "/pps/system/locale";

// The locale for times, chosen as by the C library; empty for its default.
const char* posixLocaleName()
{
    const char* const variable = LocaleName::variable();
    return variable == nullptr ? "" : std::getenv(variable);
}

// A value for a message: one line, of limited length.
QString shown(const QString& value)
{
    constexpr int enough = 40;
    QString text = value.left(enough);
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return !c.isPrint(); }, QLatin1Char('?'));
    return QLatin1Char('"') + text + QLatin1String(value.size() > enough ? "...\"" : "\"");
}

// The result of reading the object.
struct Reading
{
    std::shared_ptr<PpsObject> object = std::make_shared<PpsObject>(QString::fromLatin1(objectPath));
    QByteArray contents;
    QVariant value; // invalid if the region is not set
    QString error;
    bool isRead = false; // otherwise the error has the reason
};

QString errorOfObject(const QString& reason)
{
    return PpsObject::filePath(QString::fromLatin1(objectPath)) + QLatin1String(": ") + reason;
}

Reading readRegion()
{
    Reading reading;
    PpsObject& object = *reading.object;
    // Without notification: the calling thread may be gone by the next query.
    object.setReadyReadEnabled(false);
    bool ok = object.open(PpsOpenMode::Subscribe);
    reading.contents = ok ? object.read(&ok) : QByteArray();
    reading.isRead = ok;
    if (!ok) {
        reading.error = object.exists() ? object.errorString() : QString();
        return reading;
    }
    const QVariantMap record = PpsObject::decode(reading.contents, &ok, &reading.error);
    if (!ok) {
        reading.error = errorOfObject(reading.error);
    }
    reading.value = record.value(QStringLiteral("@locale")).toMap().value(QStringLiteral("region"));
    return reading;
}

} // namespace

RegionCache::RegionCache()
{
    moveToThread(nullptr);
}

RegionCache& RegionCache::instance()
{
    // Never destroyed: texts may be formatted while the process destroys its static objects.
    static RegionCache* const cache = std::make_unique<RegionCache>().release();
    return *cache;
}

QLocale RegionCache::locale()
{
    refresh();
    const std::shared_lock lock(m_mutex);
    return m_region.locale;
}

bool RegionCache::refresh()
{
    {
        // Threads check the file in parallel; only a change makes them wait for each other.
        const std::shared_lock lock(m_mutex);
        if (m_region.isCurrent()) {
            return true;
        }
    }
    QString message;
    bool isOther = false;
    bool isTorn = false;
    {
        const std::lock_guard lock(m_mutex);
        Region next = m_region.next();
        message.swap(next.message);
        isOther = next.locale != m_region.locale;
        isTorn = next.isTorn;
        m_region = std::move(next);
    }
    // Outside the lock: the message handler may query the region to format the time.
    if (!message.isEmpty()) {
        qWarning("zel::system::LocaleHandler: %s", qUtf8Printable(message));
    }
    if (isOther) {
        Q_EMIT changed();
    }
    return !isTorn;
}

bool RegionCache::Region::isCurrent() const
{
    return object && root == PpsObject::root() && object->isCurrent() && (isSet || posix == posixLocaleName());
}

RegionCache::Region RegionCache::Region::next() const
{
    Region region = *this;
    region.message.clear();
    region.root = PpsObject::root();
    const bool wasSet = isSet && region.root == root;
    Reading reading = readRegion();
    region.object = reading.object;
    region.isTorn = !reading.error.isEmpty() && !reading.object->isCurrent();
    if (wasSet && !reading.error.isEmpty()) {
        // An incomplete new object is most likely still being written.
        if (!region.isTorn || !reading.isRead) {
            region.report(reading.error, reading.contents);
        }
        return region;
    }
    region.isSet = false;
    if (reading.value.isValid()) {
        const QString text = reading.value.toString();
        const auto found = wasSet && text == name ? std::make_optional(locale) : LocaleName::find(text);
        if (found) {
            region.isSet = true;
            region.name = text;
            region.locale = *found;
            region.reported.clear();
            return region;
        }
        reading.error = errorOfObject(QStringLiteral("region %1 is not a locale").arg(shown(text)));
    }
    region.posix = posixLocaleName();
    region.locale = LocaleName::closest(QString::fromLocal8Bit(region.posix));
    region.report(reading.error, reading.contents);
    return region;
}

void RegionCache::Region::report(const QString& error, const QByteArray& contents)
{
    const QByteArray report = error.isEmpty() ? QByteArray() : error.toUtf8() + contents;
    const bool isNews = report != std::exchange(reported, report);
    if (isNews && !error.isEmpty()) {
        message = error + QLatin1String("; using the locale ") + locale.name();
    }
}

} // namespace zel::system
