// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_FAILURE_H
#define ZEL_TOOL_FAILURE_H

#include <QtCore/QString>
#include <stdexcept>

namespace zel::tool {

/** The exit status of the program. */
enum ExitStatus {
    Worked = 0,
    NoAnswer = 1, ///< invalid input, or no result from the library
    BadUsage = 2  ///< wrong command line
};

/** The error that ends a command, with a text of one line. */
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

/** A text on one line, without control characters. */
QString printable(QString text);

/** A user's word in quotes, on one line and shortened if it is long. */
QString quoted(const QString& word);

/** A Failure if connect() did not connect. */
void requireConnection(bool isConnected);

} // namespace zel::tool

#endif
