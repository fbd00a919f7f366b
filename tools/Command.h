#ifndef ZEL_TOOL_COMMAND_H
#define ZEL_TOOL_COMMAND_H

#include "terminal/Failure.h"
#include <QtCore/QCommandLineOption>
#include <QtCore/QList>
#include <QtCore/QString>

namespace zel::tool {

class Arguments;
class Console;

/** What `--help` says about a command. */
struct CommandHelp
{
    QString name;
    QString arguments;   ///< behind the name and the options
    QString summary;     ///< one line
    QString description; ///< whole paragraphs
    QString examples;    ///< one a line
};

/** One of the program's commands. */
class Command
{
public:
    Command() = default;
    virtual ~Command() = default;
    Q_DISABLE_COPY(Command)

    virtual CommandHelp help() const = 0;

    /** The options beside those that every command has. */
    virtual QList<QCommandLineOption> options() const { return {}; }

    /** Does the work. What cannot be done is thrown as a Failure. */
    virtual ExitStatus run(const Arguments& arguments, Console& console) const = 0;
};

} // namespace zel::tool

#endif
