// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "Program.h"
#include "terminal/Console.h"
#include "terminal/Utf8Environment.h"
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <QtCore/QCoreApplication>
#include <unistd.h>

namespace {

using zel::tool::Console;
using zel::tool::Failure;
using zel::tool::Program;

void writeMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
{
    std::fprintf(stderr, "zel-i18n: %s\n", zel::tool::printable(text.trimmed()).toUtf8().constData());
}

// Not QCoreApplication::arguments(), which decodes by the locale.
QStringList wordsOf(int argc, char* argv[])
{
    QStringList words;
    for (int i = 1; i < argc; ++i) {
        words.append(QString::fromUtf8(argv[i]));
    }
    return words;
}

// Replace missing descriptors by failing ones, so that no other file gets their numbers.
void holdStandardDescriptors()
{
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(descriptor, F_GETFD) < 0) {
            ::open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}

// Qt expects UTF-8 and warns at length in the C locale of a cron job or container.
std::unique_ptr<QCoreApplication> createApplication(int& argc, char* argv[])
{
    const zel::tool::Utf8Environment environment;
    return std::make_unique<QCoreApplication>(argc, argv);
}

int runProgram(const QStringList& words, Console& console)
try {
    const zel::tool::ExitStatus status = Program().run(words, console);
    console.flush();
    return status;
} catch (const Failure& failure) {
    console.printError(failure.text());
    return failure.status();
}

int runOnConsole(const QStringList& words)
{
    Console console;
    try {
        return runProgram(words, console);
    } catch (const Console::OutputFailed& failure) {
        if (failure.reason.isEmpty()) {
            return zel::tool::Worked;
        }
        writeMessage(QtCriticalMsg, {}, failure.reason);
        return zel::tool::NoAnswer;
    }
}

} // namespace

int main(int argc, char* argv[])
{
    holdStandardDescriptors();
    qInstallMessageHandler(&writeMessage);
    const QStringList words = wordsOf(argc, argv);
    const auto application = createApplication(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zel-i18n"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEL_VERSION));
    try {
        return runOnConsole(words);
    } catch (const Console::Interrupted& interrupted) {
        // So that the caller sees which signal ended the program.
        std::raise(interrupted.signal);
        return 128 + interrupted.signal;
    }
}
