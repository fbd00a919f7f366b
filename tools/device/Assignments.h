#ifndef ZEL_TOOL_ASSIGNMENTS_H
#define ZEL_TOOL_ASSIGNMENTS_H

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace zel::tool {

/** The settings of a device by the names that the command line has for them, and what they may be. */
class Assignments
{
public:
    Assignments() = delete;

    static QString hourFormat() { return QStringLiteral("hour-format"); }
    static QString timeZone() { return QStringLiteral("time-zone"); }
    static QString region() { return QStringLiteral("region"); }
    static QStringList keys() { return {hourFormat(), timeZone(), region()}; }

    /** A Failure where there is no such setting. */
    static void requireKey(const QString& key);

    /** What is wrong with a value; empty where it is good. */
    static QString fault(const QString& key, const QString& value);

    /** The values by their keys from words of the form KEY=VALUE, all of them checked. */
    static QMap<QString, QString> parse(const QStringList& words);
};

} // namespace zel::tool

#endif
