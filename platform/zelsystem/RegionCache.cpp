#include "RegionCache.h"

#include "LocaleName.h"
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <optional>
#include <QtCore/QVariantMap>
#include <utility>
#include <zel/PpsObject.h>

namespace zel::system {

namespace {

constexpr const char* objectPath = "/pps/system/locale";

// As the C library chooses the locale for times.
const char* posixLocaleName()
{
    for (const char* const variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const char* const name = std::getenv(variable);
        if (name != nullptr && *name != '\0') {
            return name;
        }
    }
    return "C";
}

// A value as a message shows it: on one line, and not too much of it.
QString shown(const QString& value)
{
    constexpr int enough = 40;
    QString text = value.left(enough);
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return !c.isPrint(); }, QLatin1Char('?'));
    return QLatin1Char('"') + text + QLatin1String(value.size() > enough ? "...\"" : "\"");
}

struct Region
{
    QVariant value; // invalid where the region is not set
    QByteArray contents;
    QString fault;
};

Region readRegion()
{
    PpsObject object(QString::fromLatin1(objectPath));
    bool ok = false;
    const QByteArray contents = object.open(PpsOpenMode::Subscribe) ? object.read(&ok) : QByteArray();
    if (!ok) {
        return {{}, {}, object.errorString()};
    }
    QString error;
    const QVariantMap record = PpsObject::decode(contents, &ok, &error);
    if (!ok) {
        return {{}, contents, PpsObject::filePath(QString::fromLatin1(objectPath)) + QLatin1String(": ") + error};
    }
    const QVariantMap attributes = record.value(QStringLiteral("@locale")).toMap();
    return {attributes.value(QStringLiteral("region")), contents, {}};
}

} // namespace

RegionCache& RegionCache::instance()
{
    // Never destroyed: something may still be formatted while the process destroys its static objects.
    static RegionCache* const cache = std::make_unique<RegionCache>().release();
    return *cache;
}

QLocale RegionCache::locale()
{
    const Answer given = answer();
    // Outside the lock: the message handler may well ask for the region itself, to write the time.
    if (!given.complaint.isEmpty()) {
        qWarning("zel::system::LocaleHandler: %s", qUtf8Printable(given.complaint));
    }
    return given.locale;
}

RegionCache::Answer RegionCache::answer()
{
    const char* const root = PpsObject::root();
    {
        // Threads look at the file side by side; only a change makes them wait for each other.
        const std::shared_lock<std::shared_mutex> lock(m_mutex);
        if (isCurrent(root)) {
            return {m_locale, {}};
        }
    }
    const std::lock_guard<std::shared_mutex> lock(m_mutex);
    if (m_file.isEmpty() || m_root != root) {
        m_root = root;
        m_file = m_root + objectPath;
        m_set = false;
    }
    m_stamp = FileStamp(m_file.constData());
    m_racy = m_stamp.isFresh();
    const QString complaint = update();
    return {m_locale, complaint};
}

bool RegionCache::isCurrent(const char* root) const
{
    return !m_file.isEmpty() && m_root == root && !m_racy && FileStamp(m_file.constData()) == m_stamp &&
           (m_set || m_posix == posixLocaleName());
}

// Reads the region, and returns what is to be said about it.
QString RegionCache::update()
{
    Region region = m_stamp.isMissing() ? Region() : readRegion();
    if (m_set && !region.fault.isEmpty()) {
        return complaintOf(region.fault, region.contents);
    }
    const bool wasSet = std::exchange(m_set, false);
    if (region.value.isValid()) {
        const QString name = region.value.toString();
        const auto locale = wasSet && name == m_name ? std::make_optional(m_locale) : LocaleName::find(name);
        if (locale) {
            m_name = name;
            m_locale = *locale;
            m_set = true;
            m_reported.clear();
            return {};
        }
        region.fault = QStringLiteral("%1: region %2 is not a locale").arg(QString::fromLocal8Bit(m_file), shown(name));
    }
    m_posix = posixLocaleName();
    m_locale = LocaleName::closest(QString::fromLocal8Bit(m_posix));
    return complaintOf(region.fault, region.contents);
}

QString RegionCache::complaintOf(const QString& fault, const QByteArray& contents)
{
    const QByteArray report = fault.isEmpty() ? QByteArray() : fault.toUtf8() + contents;
    const bool news = report != std::exchange(m_reported, report);
    return news && !fault.isEmpty() ? fault + QLatin1String("; using the locale ") + m_locale.name() : QString();
}

} // namespace zel::system
