#ifndef ZEL_TOOL_FAILURE_H
#define ZEL_TOOL_FAILURE_H

#include <QtCore/QString>
#include <stdexcept>

namespace zel::tool {

/** What the program tells its caller. */
enum ExitStatus {
    Worked = 0,
    NoAnswer = 1, ///< bad input, or something that the library cannot answer
    BadUsage = 2  ///< the words of the command line make no sense
};

/** The end of a command that cannot do its work, with the one line to be shown. */
class Failure : public std::runtime_error
{
public:
    explicit Failure(const QString& text) : Failure(NoAnswer, text) {}

    static Failure usage(const QString& text) { return {BadUsage, text}; }

    ExitStatus status() const { return m_status; }
    QString text() const { return QString::fromUtf8(what()); }

private:
    Failure(ExitStatus status, const QString& text) : std::runtime_error(text.toStdString()), m_status(status) {}

    ExitStatus m_status;
};

/** A text on one line, with nothing in it that a terminal obeys. */
QString printable(QString text);

/** A word of the user's in quotes, on one line and not too much of it. */
QString quoted(const QString& word);

/** A Failure where connect() did not connect. */
void requireConnection(bool isConnected);

} // namespace zel::tool

#endif
