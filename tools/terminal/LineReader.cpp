// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "terminal/LineReader.h"

#include "terminal/Console.h"
#include <algorithm>
#include <utility>

namespace zel::tool {

namespace {

constexpr std::size_t longestLine = 1024;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF"; // as some editors put it at the start of a file

std::string_view trimmed(std::string_view line)
{
    constexpr const char* blanks = " \t\r";
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
    return line.substr(0, line.find_last_not_of(blanks) + 1);
}

} // namespace

LineReader::LineReader(Console& console) : m_console(console)
{
    if (const qint64 size = console.inputSize(); size > 0 && !console.isTerminal()) {
        m_progress.emplace(size);
    }
}

void LineReader::eraseProgress()
{
    if (m_progress) {
        m_progress->erase();
    }
}

std::optional<std::string_view> LineReader::next()
{
    for (;;) {
        const std::string_view text = pending();
        const std::size_t end = text.find('\n');
        const bool complete = end != std::string_view::npos;
        if (!complete && !m_finished && text.size() <= longestLine) {
            readMore();
            continue;
        }
        if (text.empty()) {
            return {};
        }
        m_begin += complete ? end + 1 : text.size();
        if (!std::exchange(m_inLongLine, !complete)) {
            ++m_number;
            std::string_view line = text.substr(0, end);
            if (m_number == 1 && line.substr(0, byteOrderMark.size()) == byteOrderMark) {
                line.remove_prefix(byteOrderMark.size());
            }
            return line.size() > longestLine ? line.substr(0, longestLine) : trimmed(line);
        }
    }
}

void LineReader::readMore()
{
    std::copy(m_buffer.data() + m_begin, m_buffer.data() + m_end, m_buffer.data());
    m_end -= std::exchange(m_begin, 0);
    m_console.flush();
    if (m_progress) {
        m_progress->show(m_read);
    }
    const int count = m_console.read(m_buffer.data() + m_end, static_cast<int>(m_buffer.size() - m_end));
    m_end += static_cast<std::size_t>(count);
    m_read += count;
    m_finished = count == 0;
}

} // namespace zel::tool
