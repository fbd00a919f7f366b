// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "terminal/Console.h"

#include "terminal/Failure.h"
#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <limits>
#include <poll.h>
#include <QtCore/QJsonDocument>
#include <sys/ioctl.h>
#include <sys/signalfd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zel::tool {

namespace {

constexpr int enoughOutput = 32 * 1024;

sigset_t endingSignals()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    sigaddset(&set, SIGTERM);
    // Under nohup the program must outlive its terminal.
    struct sigaction hangup = {};
    if (sigaction(SIGHUP, nullptr, &hangup) == 0 && hangup.sa_handler != SIG_IGN) {
        sigaddset(&set, SIGHUP);
    }
    return set;
}

} // namespace

Console::Console()
{
    std::signal(SIGPIPE, SIG_IGN); // NOLINT(cert-err33-c): cannot fail for this signal
    const sigset_t set = endingSignals();
    sigprocmask(SIG_BLOCK, &set, nullptr);
    m_output.reserve(enoughOutput);
    m_signals = signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
}

Console::~Console()
{
    ::close(m_signals);
    const sigset_t set = endingSignals();
    sigprocmask(SIG_UNBLOCK, &set, nullptr);
}

void Console::line(const QString& text)
{
    m_output += text.toUtf8();
    m_output += '\n';
    if (m_output.size() >= enoughOutput) {
        flush();
    }
}

void Console::json(const QJsonObject& object)
{
    line(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}

void Console::flush()
{
    int written = 0;
    while (written < m_output.size()) {
        written += writeSome(m_output.constData() + written, static_cast<int>(m_output.size()) - written);
    }
    m_output.resize(0); // keeps the memory, unlike clear()
}

int Console::writeSome(const char* text, int size) const
{
    // A writable pipe accepts this much without blocking.
    waitFor(STDOUT_FILENO, POLLOUT);
    const auto written = ::write(STDOUT_FILENO, text, static_cast<std::size_t>(std::min(size, PIPE_BUF)));
    if (written >= 0) {
        return static_cast<int>(written);
    }
    if (errno == EPIPE) {
        throw OutputFailed();
    }
    if (errno != EINTR && errno != EAGAIN) {
        throw OutputFailed{QStringLiteral("cannot write the output: ") + qt_error_string(errno)};
    }
    return 0;
}

void Console::printError(const QString& text)
{
    flush();
    std::fprintf(stderr, "zel-i18n: %s\n", printable(text).toUtf8().constData());
}

int Console::read(char* target, int size)
{
    for (;;) {
        waitFor(STDIN_FILENO, POLLIN);
        const auto count = ::read(STDIN_FILENO, target, static_cast<std::size_t>(size));
        if (count >= 0) {
            return static_cast<int>(count);
        }
        if (errno != EINTR && errno != EAGAIN) {
            throw Failure(QStringLiteral("cannot read standard input: ") + qt_error_string(errno));
        }
    }
}

qint64 Console::inputSize() const
{
    struct stat file = {};
    if (::fstat(STDIN_FILENO, &file) != 0 || !S_ISREG(file.st_mode)) {
        return 0;
    }
    return file.st_size - ::lseek(STDIN_FILENO, 0, SEEK_CUR);
}

void Console::waitFor(int descriptor, short events) const
{
    std::array<pollfd, 2> waiting = {{{m_signals, POLLIN, 0}, {descriptor, events, 0}}};
    while (::poll(waiting.data(), waiting.size(), -1) < 0) {
        if (errno != EINTR) {
            return;
        }
    }
    if ((waiting[0].revents & POLLIN) != 0) {
        throw Interrupted{takeSignal()};
    }
}

int Console::takeSignal() const
{
    signalfd_siginfo info = {};
    return ::read(m_signals, &info, sizeof info) == sizeof info ? static_cast<int>(info.ssi_signo) : 0;
}

bool Console::isTerminal() const
{
    return ::isatty(STDOUT_FILENO) == 1;
}

int Console::columns() const
{
    winsize size = {};
    const bool known = isTerminal() && ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : std::numeric_limits<int>::max();
}

} // namespace zel::tool
