#ifndef ZEL_TOOL_CONSOLE_H
#define ZEL_TOOL_CONSOLE_H

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

namespace zel::tool {

/**
 * Standard input, output and error, and the signals that ask the program to end.
 *
 * Output is UTF-8 whatever the locale, and collected until flush() or until there is a good deal of it. While a console
 * exists, an interrupt or termination does not end the process at once: a wait ends with Interrupted instead, so that
 * what has to be cleaned up is.
 */
class Console
{
public:
    /** Thrown when a signal asks the program to end. */
    struct Interrupted
    {
        int signal;
    };

    /** Thrown when output cannot be written. There is no reason to tell where it is just not read any more. */
    struct OutputFailed
    {
        QString reason;
    };

    Console();
    ~Console();
    Q_DISABLE_COPY(Console)

    void line(const QString& text);
    /** One JSON document on a line of its own. */
    void json(const QJsonObject& object);
    void flush();

    /** One line on standard error, behind all output so far. */
    void complain(const QString& text);

    /** Reads what is there, and waits only where nothing is. Answers the number of bytes, 0 at the end. */
    int read(char* target, int size);

    /** The bytes that are left to read in a file, as it is now; 0 for any other input. */
    qint64 inputSize() const;

    /** Readable when a signal asks the program to end. */
    int signalDescriptor() const { return m_signals; }

    /** Takes the signal that asks the program to end, where there is one: its number, otherwise 0. */
    int takeSignal() const;

    bool isTerminal() const;
    /** The width of the terminal; a very large number where the output is none. */
    int columns() const;

private:
    void waitFor(int descriptor, short events) const;
    int writeSome(const char* text, int size) const;

    QByteArray m_output;
    int m_signals;
};

} // namespace zel::tool

#endif
