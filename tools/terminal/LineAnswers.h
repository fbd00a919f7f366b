// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_LINEANSWERS_H
#define ZEL_TOOL_LINEANSWERS_H

#include "terminal/Console.h"
#include "terminal/Failure.h"
#include "terminal/LineReader.h"
#include <QtCore/QList>
#include <QtCore/QStringList>
#include <vector>

namespace zel::tool {

/** Answers the lines of standard input in their order. Lines that are already available are formatted in one call. */
class LineAnswers
{
public:
    LineAnswers(Console& console, bool json) : m_console(console), m_json(json) {}

    /**
     * A line for which reading or writing is a Failure is reported and skipped; with JSON also reported in the output.
     *
     * @param read makes a value of the text of a line
     * @param format makes a list of texts of a list of values
     * @param write writes a value and its text
     */
    template <typename Read, typename Format, typename Write>
    ExitStatus run(const Read& read, const Format& format, const Write& write)
    {
        using Value = decltype(read(std::string_view()));
        QList<Value> values;
        while (const auto text = m_reader.next()) {
            m_lines.push_back({m_reader.number(), *text, {}});
            attempt(m_lines.back(), [&] { values.append(read(*text)); });
            if (!m_reader.hasLine()) {
                writeAll(values, format(values), write);
                values.clear();
            }
        }
        return m_status;
    }

private:
    struct Line
    {
        qlonglong number;
        std::string_view text;
        QString error;
    };

    template <typename Action>
    static void attempt(Line& line, const Action& action)
    {
        try {
            action();
        } catch (const Failure& failure) {
            line.error = failure.text();
        }
    }

    template <typename Value, typename Write>
    void writeAll(const QList<Value>& values, const QStringList& texts, const Write& write)
    {
        int next = 0;
        for (Line& line : m_lines) {
            if (line.error.isEmpty()) {
                const int index = next++;
                attempt(line, [&] { write(values[index], texts[index]); });
            }
            if (!line.error.isEmpty()) {
                report(line);
            }
        }
        m_lines.clear();
    }

    void report(const Line& line);

    Console& m_console;
    LineReader m_reader{m_console};
    std::vector<Line> m_lines;
    bool m_json;
    ExitStatus m_status = Worked;
};

} // namespace zel::tool

#endif
