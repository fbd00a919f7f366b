// The region locale of a Linux host: the locale of its environment for dates and times.

#include "bridge/Locale.h"

#include <memory>
#include <mutex>
#include <QtCore/QByteArray>
#include <zel/system/LocaleName.h>

namespace zel::utility::i18n {

namespace {

// As the C library chooses the locale for times.
QByteArray environmentName()
{
    for (const char* const variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QByteArray name = qgetenv(variable);
        if (!name.isEmpty()) {
            return name;
        }
    }
    return "C";
}

/** The last locale and the name it was made from, so that a name is read again only when it changes. */
struct Cache
{
    std::mutex mutex;
    QByteArray name;
    QLocale locale;
};

} // namespace

QLocale Locale::region()
{
    // Never destroyed: something may still be formatted while the process destroys its static objects.
    static Cache* const cache = std::make_unique<Cache>().release();
    const QByteArray name = environmentName();
    const std::lock_guard lock(cache->mutex);
    if (cache->name != name) {
        cache->name = name;
        cache->locale = zel::system::LocaleName::closest(QString::fromLocal8Bit(name));
    }
    return cache->locale;
}

} // namespace zel::utility::i18n
