#ifndef ZEL_TOOL_ARGUMENTS_H
#define ZEL_TOOL_ARGUMENTS_H

#include <QtCore/QCommandLineParser>
#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QLocale>
#include <QtCore/QMap>
#include <QtCore/QStringList>

namespace zel::tool {

class MomentReader;

/** A locale with the name that the user gave it. */
struct NamedLocale
{
    QString name;
    QLocale locale;
};

/** The words behind a command, taken apart and checked. What makes no sense is a Failure. */
class Arguments
{
public:
    /** @param words what follows the name of the command */
    Arguments(const QList<QCommandLineOption>& options, const QStringList& words);

    /** What is no option. */
    QStringList positional() const;

    bool has(const QString& option) const { return m_parser.isSet(option); }
    bool json() const { return has(QStringLiteral("json")); }

    /** The value of an option that makes sense once. */
    QString value(const QString& option) const;
    int number(const QString& option, int fallback, int largest) const;
    QDateTime moment(const QString& option, const MomentReader& reader, const QDateTime& fallback) const;
    /** One of the choices by its name, or the fallback where the option was not given. */
    int choice(const QString& option, const QMap<QString, int>& choices, int fallback) const;

    /** The locales named by --locale; the region of the device where there are none. */
    QList<NamedLocale> locales() const;
    /** The same for a command that works for one locale. */
    NamedLocale locale() const;

private:
    QCommandLineParser m_parser;
};

} // namespace zel::tool

#endif
