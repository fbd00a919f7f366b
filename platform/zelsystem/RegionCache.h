#ifndef ZEL_SYSTEM_REGIONCACHE_H
#define ZEL_SYSTEM_REGIONCACHE_H

#include "FileStamp.h"
#include <QtCore/QByteArray>
#include <QtCore/QLocale>
#include <QtCore/QString>
#include <shared_mutex>

namespace zel::system {

/**
 * The region and what it was made from. The settings object is parsed again only when its file's status or the
 * environment has changed, and each bad content of it is reported once. An object that is torn, as while it is
 * rewritten in place, takes nothing from the region that it gave before. Any thread may ask.
 */
class RegionCache
{
public:
    /** The cache of this process. */
    static RegionCache& instance();

    QLocale locale();

private:
    struct Answer
    {
        QLocale locale;
        QString complaint;
    };

    Answer answer();
    bool isCurrent(const char* root) const;
    QString update();
    QString complaintOf(const QString& fault, const QByteArray& contents);

    std::shared_mutex m_mutex;
    QByteArray m_root;
    QByteArray m_file;
    bool m_set = false; // the locale is the region that the object gave
    QString m_name;     // by which the object gave it
    QByteArray m_posix; // the name that stands in where it gave none
    FileStamp m_stamp;
    bool m_racy = false; // the stamp was taken too soon after a change to show a further one
    QLocale m_locale = QLocale::c();
    QByteArray m_reported; // the fault that was reported last, with the content that has it
};

} // namespace zel::system

#endif
