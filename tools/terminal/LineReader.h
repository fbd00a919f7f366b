// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_LINEREADER_H
#define ZEL_TOOL_LINEREADER_H

#include "terminal/ProgressBar.h"
#include <array>
#include <optional>
#include <QtCore/QtGlobal>
#include <string_view>

namespace zel::tool {

class Console;

/**
 * Reads standard input line by line in constant memory. Output is flushed before a wait, so that a slow pipe gets its
 * results line by line. Shows a progress bar when a file is read into another file or a pipe.
 */
class LineReader
{
public:
    explicit LineReader(Console& console);

    /** Makes room on standard error for a line. */
    void eraseProgress();

    /**
     * The next line without its end and the blanks around it; none at the end of the input. Of a line that is too long
     * to be valid, only the beginning. Valid until a call made while hasLine() is false.
     */
    std::optional<std::string_view> next();

    /** Whether next() can return a line without waiting. */
    bool hasLine() const { return pending().find('\n') != std::string_view::npos; }

    /** The number of the line that next() returned, from 1. */
    qlonglong number() const { return m_number; }

private:
    std::string_view pending() const { return {m_buffer.data() + m_begin, m_end - m_begin}; }
    void readMore();

    Console& m_console;
    std::optional<ProgressBar> m_progress;
    qint64 m_read = 0;
    std::array<char, 65536> m_buffer{};
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    qlonglong m_number = 0;
    bool m_finished = false;
    bool m_inLongLine = false;
};

} // namespace zel::tool

#endif
