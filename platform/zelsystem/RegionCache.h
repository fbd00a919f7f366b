// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_SYSTEM_REGIONCACHE_H
#define ZEL_SYSTEM_REGIONCACHE_H

#include <memory>
#include <optional>
#include <QtCore/QByteArray>
#include <QtCore/QLocale>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <shared_mutex>
#include <zel/PpsObject.h>

namespace zel::system {

/**
 * The region and its source. The settings object is read again only if its file's status or the environment has
 * changed; each invalid content is reported once. While the object is torn, for example during a rewrite in place, its
 * last region stays in use. Call on any thread; the cache itself belongs to none.
 */
class RegionCache : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RegionCache)

public:
    static constexpr const char* objectPath = "/pps/system/locale";

    RegionCache();

    /** The cache of this process. */
    static RegionCache& instance();

    /** The region as it is now; costs one stat() if nothing has changed. */
    QLocale locale();

    /**
     * Reads the region again if the object or the environment has changed.
     *
     * @return false if the object is being written and cannot be read, so that another call is needed soon
     */
    bool refresh();

Q_SIGNALS:
    /** The region changed. Emitted on the thread that noticed it. */
    void changed();

private:
    /** A locale and its name in the object or, if that does not set the region, in the environment. */
    struct Choice
    {
        bool isSet = false;
        QByteArray name;
        QLocale locale = QLocale::c();
    };

    /** The region and its source. Never changed, only replaced. */
    struct Region
    {
        std::shared_ptr<PpsObject> object; // as it was read; null before the first time
        QByteArray root;
        Choice choice;
        QByteArray reported; // the last reported error, with its content

        bool isCurrent() const;
    };

    /** The result of reading the region again. */
    struct Step
    {
        Region region;
        QString message; // to be written, if not empty
        bool isTorn;     // the object is being written
    };

    static Step next(const Region& last);
    static std::optional<Choice> chosen(const QVariant& value, const Choice& last, QString& error);
    static Choice fallback();

    std::shared_mutex m_mutex;
    Region m_region; // copy and destroy under the lock only
};

} // namespace zel::system

#endif
