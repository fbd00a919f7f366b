#ifndef ZEL_TOOL_DEVICE_H
#define ZEL_TOOL_DEVICE_H

#include "device/Finding.h"
#include <optional>
#include <QtCore/QList>
#include <QtCore/QLocale>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace zel::tool {

/** The settings of the device that the library follows. */
class Device
{
public:
    Device() = delete;

    /** The value of a setting, nothing where it is not set; a Failure where it cannot be read. */
    static std::optional<QString> get(const QString& key);

    /** What set() may do that is a Failure otherwise. */
    struct Permissions
    {
        bool replace = false; ///< write what cannot be read anew, with nothing beside the settings
        bool create = false;  ///< make a device of a machine that is none
    };

    /**
     * Changes settings, each in one step that no reader sees half done and no other of these commands comes between,
     * and leaves alone what stands beside them.
     */
    static void set(const QMap<QString, QString>& values, Permissions permissions);
    static void unset(const QStringList& keys);

    /** The user's region locale. */
    static QLocale region();

    /** A Failure where a setting cannot be read, so that no answer is given under a setting that nobody chose. */
    static void requireReadable();

    /** Becomes, for this process, a device whose settings are kept in a directory, and none of them set. */
    static void useEmpty(const QString& directory);

    /** Becomes, for this process, the same device with another region. What changes is kept in a directory. */
    static void useRegion(const QString& name, const QString& directory);

    /** The state of the settings, and each setting with its source. */
    static QList<Finding> examine();
};

} // namespace zel::tool

#endif
