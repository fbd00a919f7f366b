// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_PROGRAM_H
#define ZEL_TOOL_PROGRAM_H

#include "terminal/Failure.h"
#include <memory>
#include <QtCore/QStringList>
#include <vector>

namespace zel::tool {

class Command;
class Console;

/** The program: its commands, and the dispatch of a command line to one of them. */
class Program
{
    Q_DISABLE_COPY_MOVE(Program)

public:
    Program();
    ~Program();

    /** @param words the command line without the name of the program */
    ExitStatus run(const QStringList& words, Console& console) const;

private:
    ExitStatus runCommand(const Command& command, const QStringList& words, Console& console) const;
    const Command& find(const QString& name) const;
    /** The help of the named command; without words, of the program. */
    QString helpOn(QStringList words) const;
    QString help() const;
    static QString help(const Command& command);

    std::vector<std::unique_ptr<Command>> m_commands;
};

} // namespace zel::tool

#endif
