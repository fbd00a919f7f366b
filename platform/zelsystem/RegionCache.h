#ifndef ZEL_SYSTEM_REGIONCACHE_H
#define ZEL_SYSTEM_REGIONCACHE_H

#include <memory>
#include <QtCore/QByteArray>
#include <QtCore/QLocale>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <shared_mutex>
#include <zel/PpsObject.h>

namespace zel::system {

/**
 * The region and what it was made from. The settings object is read again only if its file's status or the environment
 * has changed, and each bad content of it is reported once. An object that is torn, as while it is rewritten in place,
 * takes nothing from the region that it gave before. Any thread may ask; the cache itself belongs to none.
 */
class RegionCache : public QObject
{
    Q_OBJECT

public:
    RegionCache();

    /** The cache of this process. */
    static RegionCache& instance();

    /** The region as of now; costs one stat() if nothing has changed. */
    QLocale locale();

    /**
     * Reads the region again if the object or the environment has changed.
     *
     * @return false if the object is being written just now and cannot be read, so that another call is needed soon
     */
    bool refresh();

Q_SIGNALS:
    /** The region is another one. Emitted on the thread that noticed it. */
    void changed();

private:
    /** What the region is and why. */
    struct Region
    {
        std::shared_ptr<PpsObject> object; // as it was read; null before the first time
        QByteArray root;
        bool isSet = false; // the locale is the region that the object gave
        QString name;       // by which the object gave it
        QByteArray posix;   // the name of the fallback
        QLocale locale = QLocale::c();
        QByteArray reported; // the error that was reported last, with the content that has it
        bool isTorn = false; // the object is being written
        QString message;     // what is to be reported now

        bool isCurrent() const;
        Region next() const;
        void report(const QString& error, const QByteArray& contents);
    };

    std::shared_mutex m_mutex;
    Region m_region; // what it holds is copied and destroyed under the lock only
};

} // namespace zel::system

#endif
