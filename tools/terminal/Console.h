// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_CONSOLE_H
#define ZEL_TOOL_CONSOLE_H

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

namespace zel::tool {

/**
 * Standard input, output and error, and the signals that ask the program to end.
 *
 * Output is UTF-8 in every locale, and buffered up to 32 KiB or until flush(). While a console exists, SIGINT and
 * SIGTERM do not end the process at once: a wait ends with Interrupted instead, so that destructors run.
 */
class Console
{
    Q_DISABLE_COPY_MOVE(Console)

public:
    /** Thrown when a signal requests termination. */
    struct Interrupted
    {
        int signal;
    };

    /** Thrown when output cannot be written. Without a text if the reader closed the pipe. */
    struct OutputFailed
    {
        QString reason;
    };

    Console();
    ~Console();

    void line(const QString& text);
    /** Prints one JSON document on a line. */
    void json(const QJsonObject& object);
    void flush();

    /** Prints one line on standard error, after all output so far. */
    void printError(const QString& text);

    /** Reads available input, and waits only if there is none. Returns the number of bytes, 0 at the end. */
    int read(char* target, int size);

    /** The bytes left to read if standard input is a file; 0 for any other input. */
    qint64 inputSize() const;

    /** A descriptor that is readable when a signal requests termination. */
    int signalDescriptor() const { return m_signals; }

    /** Takes the signal that requests termination and returns its number; 0 if there is none. */
    int takeSignal() const;

    bool isTerminal() const;
    /** The width of the terminal; a very large number if the output is not a terminal. */
    int columns() const;

private:
    void waitFor(int descriptor, short events) const;
    int writeSome(const char* text, int size) const;

    QByteArray m_output;
    int m_signals;
};

} // namespace zel::tool

#endif
