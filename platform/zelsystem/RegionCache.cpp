// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "RegionCache.h"

#include <algorithm>
#include <cstdlib>
#include <mutex>
#include <QtCore/QVariantMap>
#include <utility>
#include <zel/system/LocaleName.h>

namespace zel::system {

namespace {

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
    std::shared_ptr<PpsObject> object = std::make_shared<PpsObject>(QString::fromLatin1(RegionCache::objectPath));
    QByteArray contents;
    QVariant value; // invalid if the region is not set
    QString error;
    bool isRead = false; // otherwise the error has the reason
};

QString errorOfObject(const QString& reason)
{
    return PpsObject::filePath(QString::fromLatin1(RegionCache::objectPath)) + QLatin1String(": ") + reason;
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
    return m_region.choice.locale;
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
        Step step = next(m_region);
        message.swap(step.message);
        isOther = step.region.choice.locale != m_region.choice.locale;
        isTorn = step.isTorn;
        m_region = std::move(step.region);
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
    return object && root == PpsObject::root() && object->isCurrent() &&
           (choice.isSet || choice.name == posixLocaleName());
}

RegionCache::Step RegionCache::next(const Region& last)
{
    const QByteArray root = PpsObject::root();
    const Choice known = last.root == root ? last.choice : Choice(); // nothing is known below another root
    const Reading reading = readRegion();
    const bool isTorn = !reading.error.isEmpty() && !reading.object->isCurrent();
    const bool isKept = !reading.error.isEmpty() && known.isSet;
    if (isKept && isTorn && reading.isRead) {
        // An incomplete new object is most likely still being written.
        return {{reading.object, root, known, last.reported}, {}, isTorn};
    }
    QString error = reading.error;
    const std::optional<Choice> found = isKept ? known : chosen(reading.value, known, error);
    const Choice choice = found ? *found : fallback();
    const QByteArray report = error.isEmpty() ? QByteArray() : error.toUtf8() + reading.contents;
    const bool isNews = !error.isEmpty() && report != last.reported;
    const QString message = isNews ? error + QLatin1String("; using the locale ") + choice.locale.name() : QString();
    return {{reading.object, root, choice, report}, message, isTorn};
}

// The choice of the object; none if the region is not set or, with the reason in `error`, not a locale.
std::optional<RegionCache::Choice> RegionCache::chosen(const QVariant& value, const Choice& last, QString& error)
{
    if (!value.isValid()) {
        return {};
    }
    const QString text = value.toString();
    if (last.isSet && text == QString::fromUtf8(last.name)) {
        return last;
    }
    const std::optional<QLocale> locale = LocaleName::find(text);
    if (!locale) {
        error = errorOfObject(QStringLiteral("region %1 is not a locale").arg(shown(text)));
        return {};
    }
    return Choice{true, text.toUtf8(), *locale};
}

RegionCache::Choice RegionCache::fallback()
{
    const QByteArray name = posixLocaleName();
    return {false, name, LocaleName::closest(QString::fromLocal8Bit(name))};
}

} // namespace zel::system
