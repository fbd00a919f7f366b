// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "Completion.h"

#include "Arguments.h"
#include "Command.h"
#include "device/Assignments.h"
#include "terminal/Console.h"
#include "texts/KnownLocale.h"
#include <algorithm>

namespace zel::tool {

namespace {

QMap<QString, QString> withoutDescriptions(const QString& prefix, const QStringList& words)
{
    QMap<QString, QString> proposals;
    for (const QString& word : words) {
        proposals[prefix + word] = QString();
    }
    return proposals;
}

QMap<QString, QString> locales()
{
    QMap<QString, QString> proposals;
    for (const QString& name : KnownLocale::names()) {
        proposals[name] = KnownLocale(name).englishTitle();
    }
    return proposals;
}

std::optional<QCommandLineOption> optionWithValue(const Command& command, const QString& word)
{
    for (const QCommandLineOption& option : command.allOptions()) {
        if (!option.valueName().isEmpty() && word == QLatin1String("--") + option.names().last()) {
            return option;
        }
    }
    return {};
}

} // namespace

ExitStatus Completion::run(QStringList words, Console& console) const
{
    QString word = words.isEmpty() ? QString() : words.takeLast();
    QString complete;
    if (word.startsWith(QLatin1String("--")) && word.contains(QLatin1Char('='))) {
        // An option and its value in one word.
        words.append(word.section(QLatin1Char('='), 0, 0));
        complete = words.last() + QLatin1Char('=');
        word.remove(0, complete.size());
    }
    const auto proposed = proposals(words, word);
    if (!proposed) {
        return NoAnswer;
    }
    for (auto proposal = proposed->begin(); proposal != proposed->end(); ++proposal) {
        if (proposal.key().startsWith(word)) {
            console.line(complete + proposal.key() + QLatin1Char('\t') + proposal.value());
        }
    }
    return Worked;
}

std::optional<Completion::Proposals> Completion::proposals(const QStringList& before, const QString& word) const
{
    if (before.isEmpty() || before.first() == QLatin1String("help")) {
        return commands();
    }
    const auto found = std::find_if(m_commands.begin(), m_commands.end(),
                                    [&](const auto& candidate) { return candidate->help().name == before.first(); });
    if (found == m_commands.end()) {
        return Proposals();
    }
    const Command& command = **found;
    if (const auto option = optionWithValue(command, before.last())) {
        return values(command, *option, word);
    }
    if (word.startsWith(QLatin1Char('-'))) {
        return options(command);
    }
    return arguments(command, before.mid(1), word);
}

std::optional<Completion::Proposals> Completion::values(const Command& command, const QCommandLineOption& option,
                                                        const QString& word)
{
    const QString name = option.names().last();
    if (option.valueName() == QLatin1String("FILE")) {
        return {};
    }
    if (name == QLatin1String("locale")) {
        return locales();
    }
    if (name == QLatin1String("device")) {
        const QString complete = word.left(word.lastIndexOf(QLatin1Char(',')) + 1);
        return withoutDescriptions(complete, Assignments::proposals(word.mid(complete.size())));
    }
    return withoutDescriptions({}, command.choices(name));
}

Completion::Proposals Completion::options(const Command& command)
{
    Proposals proposals;
    for (const QCommandLineOption& option : command.allOptions()) {
        proposals[QLatin1String("--") + option.names().last()] =
            option.description().replace(QLatin1Char('\n'), QLatin1Char(' '));
    }
    return proposals;
}

Completion::Proposals Completion::arguments(const Command& command, const QStringList& before, const QString& word)
try {
    return withoutDescriptions({}, command.proposals(Arguments(command.allOptions(), before).positional(), word));
} catch (const Failure&) {
    return {}; // the words before are invalid
}

Completion::Proposals Completion::commands() const
{
    Proposals proposals = {{QStringLiteral("help"), QStringLiteral("Show the help of a command.")},
                           {QStringLiteral("--help"), QStringLiteral("Show the commands.")},
                           {QStringLiteral("--version"), QStringLiteral("Show the version.")}};
    for (const auto& command : m_commands) {
        const CommandHelp help = command->help();
        proposals[help.name] = help.summary;
    }
    return proposals;
}

} // namespace zel::tool
