// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_COMPLETION_H
#define ZEL_TOOL_COMPLETION_H

#include "terminal/Failure.h"
#include <memory>
#include <optional>
#include <QtCore/QCommandLineOption>
#include <QtCore/QMap>
#include <QtCore/QStringList>
#include <vector>

namespace zel::tool {

class Command;
class Console;

/** Proposes words for the end of a command line, so that completion is the same in every shell. */
class Completion
{
public:
    using Commands = std::vector<std::unique_ptr<Command>>;

    explicit Completion(const Commands& commands) : m_commands(commands) {}

    /**
     * Writes the proposals for the last word, one per line: the word, a tab and a description, which may be empty. The
     * status is NoAnswer if the word is the name of a file, which the shell completes itself.
     *
     * @param words the command line without the name of the program
     */
    ExitStatus run(QStringList words, Console& console) const;

private:
    /** Words with their descriptions. */
    using Proposals = QMap<QString, QString>;

    std::optional<Proposals> proposals(const QStringList& before, const QString& word) const;
    static std::optional<Proposals> values(const Command& command, const QCommandLineOption& option,
                                           const QString& word);
    static Proposals options(const Command& command);
    static Proposals arguments(const Command& command, const QStringList& before, const QString& word);
    Proposals commands() const;

    const Commands& m_commands;
};

} // namespace zel::tool

#endif
