// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_COMMAND_H
#define ZEL_TOOL_COMMAND_H

#include "terminal/Failure.h"
#include <QtCore/QCommandLineOption>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace zel::tool {

class Arguments;
class Console;

/** The help of a command. */
struct CommandHelp
{
    QString name;
    QString arguments;   ///< after the name and the options
    QString summary;     ///< one line
    QString description; ///< paragraphs
    QString examples;    ///< one per line
};

/** One of the program's commands. */
class Command
{
    Q_DISABLE_COPY_MOVE(Command)

public:
    Command() = default;
    virtual ~Command() = default;

    virtual CommandHelp help() const = 0;

    /** Whether the answer can depend on the device, so that --device is an option. */
    virtual bool takesDevice() const { return true; }

    /** The options besides those of every command. */
    virtual QList<QCommandLineOption> options() const { return {}; }

    /** The options of this command and of every command. */
    QList<QCommandLineOption> allOptions() const;

    /** The values of an option that has only a few. */
    virtual QStringList choices(const QString& /*option*/) const { return {}; }

    /** The possible next arguments, given the complete ones and the beginning of the next one. */
    virtual QStringList proposals(const QStringList& /*before*/, const QString& /*word*/) const { return {}; }

    /** Runs the command; throws a Failure. */
    virtual ExitStatus run(const Arguments& arguments, Console& console) const = 0;
};

} // namespace zel::tool

#endif
