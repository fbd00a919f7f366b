// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_ANSWERS_H
#define ZEL_TOOL_ANSWERS_H

#include <QtCore/QDateTime>
#include <QtCore/QString>

namespace zel::tool {

class Console;

/** Prints the texts of moments, one per line, plain or as JSON with the moment. */
class Answers
{
public:
    Answers(Console& console, bool json) : m_console(console), m_json(json) {}

    /** An empty text is a Failure. */
    void write(const QDateTime& moment, const QString& text) const;

    /** The same with the time at which the text changes; invalid for a text that never changes. */
    void write(const QDateTime& moment, const QString& text, const QDateTime& until) const;

private:
    Console& m_console;
    bool m_json;
};

} // namespace zel::tool

#endif
