// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "Program.h"

#include "Arguments.h"
#include "commands/Commands.h"
#include "Completion.h"
#include "device/ThrowAwayDevice.h"
#include "terminal/Console.h"
#include <algorithm>
#include <optional>

namespace zel::tool {

namespace {

// Two columns; the right one may have several lines.
QString entry(const QString& left, QString right)
{
    constexpr int width = 28;
    right.replace(QLatin1Char('\n'), QLatin1Char('\n') + QString(width, QLatin1Char(' ')));
    return (QLatin1String("  ") + left).leftJustified(width) + right + QLatin1Char('\n');
}

QString optionNames(const QCommandLineOption& option)
{
    QStringList names;
    for (const QString& name : option.names()) {
        names.append(QLatin1String(name.size() == 1 ? "-" : "--") + name);
    }
    return names.join(QLatin1String(", ")) +
           (option.valueName().isEmpty() ? QString() : QLatin1Char(' ') + option.valueName());
}

bool isHelp(const QString& word)
{
    return QStringList({QStringLiteral("help"), QStringLiteral("--help"), QStringLiteral("-h")}).contains(word);
}

} // namespace

Program::Program()
{
    m_commands.push_back(formatsCommand());
    m_commands.push_back(formatCommand());
    m_commands.push_back(relativeCommand());
    m_commands.push_back(percentCommand());
    m_commands.push_back(watchCommand());
    m_commands.push_back(galleryCommand());
    m_commands.push_back(localesCommand());
    m_commands.push_back(deviceCommand());
    m_commands.push_back(doctorCommand());
}

Program::~Program() = default;

ExitStatus Program::run(const QStringList& words, Console& console) const
{
    const QString first = words.value(0);
    if (isHelp(first)) {
        console.line(helpOn(words.mid(1)));
    } else if (first == QLatin1String("--version") || first == QLatin1String("-V")) {
        console.line(QStringLiteral("zel-i18n " ZEL_VERSION));
    } else if (first == QLatin1String("complete")) {
        return Completion(m_commands).run(words.mid(1), console);
    } else {
        return runCommand(find(first), words.mid(1), console);
    }
    return Worked;
}

ExitStatus Program::runCommand(const Command& command, const QStringList& words, Console& console) const
try {
    const Arguments arguments(command.allOptions(), words);
    if (arguments.has(QStringLiteral("help"))) {
        console.line(help(command));
        return Worked;
    }
    std::optional<ThrowAwayDevice> device;
    if (command.takesDevice() && arguments.has(QStringLiteral("device"))) {
        device.emplace(arguments.value(QStringLiteral("device")));
    }
    return command.run(arguments, console);
} catch (const Failure& failure) {
    if (failure.status() != BadUsage) {
        throw;
    }
    throw Failure::usage(failure.text() + QStringLiteral("; see 'zel-i18n %1 --help'").arg(command.help().name));
}

const Command& Program::find(const QString& name) const
{
    for (const auto& command : m_commands) {
        if (command->help().name == name) {
            return *command;
        }
    }
    throw Failure::usage(
        (name.isEmpty() ? QStringLiteral("no command given") : QStringLiteral("unknown command ") + quoted(name)) +
        QStringLiteral("; see 'zel-i18n --help'"));
}

QString Program::helpOn(QStringList words) const
{
    words.erase(std::remove_if(words.begin(), words.end(), &isHelp), words.end()); // "help help"
    if (words.size() > 1) {
        throw Failure::usage(QStringLiteral("one command at most, not also ") + quoted(words.at(1)) +
                             QStringLiteral("; see 'zel-i18n --help'"));
    }
    return words.isEmpty() ? help() : help(find(words.first()));
}

QString Program::help() const
{
    QString text = QStringLiteral("Usage: zel-i18n COMMAND [OPTION...] [ARGUMENT...]\n\n"
                                  "Formats dates, times, relative dates and percentages in every locale.\n\n"
                                  "Commands:\n");
    for (const auto& command : m_commands) {
        text += entry(command->help().name, command->help().summary);
    }
    return text + entry(QStringLiteral("help"), QStringLiteral("Show this text, or the help of a command.")) +
           QStringLiteral("\nOptions:\n") +
           entry(QStringLiteral("-h, --help"), QStringLiteral("Show this text, or, after a command, its help.")) +
           entry(QStringLiteral("-V, --version"), QStringLiteral("Show the version.")) +
           QStringLiteral("\nExit status: 0 success, 1 invalid input or no result, 2 wrong usage.");
}

QString Program::help(const Command& command)
{
    const CommandHelp about = command.help();
    QString text = QStringLiteral("Usage: zel-i18n %1 [OPTION...] %2").arg(about.name, about.arguments).trimmed() +
                   QLatin1String("\n\n") + about.description + QLatin1String("\n\nOptions:\n");
    for (const QCommandLineOption& option : command.allOptions()) {
        text += entry(optionNames(option), option.description());
    }
    text += QLatin1String("\nExamples:");
    for (const QString& example : about.examples.split(QLatin1Char('\n'))) {
        text += QLatin1String("\n  zel-i18n ") + example;
    }
    return text;
}

} // namespace zel::tool
