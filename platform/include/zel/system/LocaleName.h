#ifndef ZEL_SYSTEM_LOCALENAME_H
#define ZEL_SYSTEM_LOCALENAME_H

#include <optional>
#include <QtCore/QLocale>
#include <QtCore/QString>

namespace zel::system {

/** Locales by their BCP 47 or POSIX names. */
class LocaleName
{
public:
    LocaleName() = delete;

    /**
     * Exactly the locale that the name asks for; "C" and "POSIX" name the C locale. A QLocale made from a name that it
     * does not know is silently another one; here that gives nothing.
     */
    static std::optional<QLocale> find(const QString& name);

    /** The locale that comes closest to the name of a POSIX locale, at worst the C locale. */
    static QLocale closest(const QString& name);

    /** The environment variable that names the process's POSIX locale for times; null where none does. */
    static const char* variable();
};

} // namespace zel::system

#endif
