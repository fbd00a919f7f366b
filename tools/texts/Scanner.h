// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_SCANNER_H
#define ZEL_TOOL_SCANNER_H

#include <QtCore/qglobal.h>
#include <string_view>

namespace zel::tool {

/** Reads a text from left to right. After the first unexpected character, isAtEnd() stays false. */
class Scanner
{
public:
    explicit Scanner(std::string_view text) : m_rest(text) {}

    /** Whether the whole text has been read as expected. */
    bool isAtEnd() const { return m_good && m_rest.empty(); }

    bool startsWith(std::string_view characters) const
    {
        return !m_rest.empty() && characters.find(m_rest.front()) != std::string_view::npos;
    }
    bool startsWithDigit() const { return startsWith("0123456789"); }

    /** Skips the next character if it is one of these, and returns whether it was. */
    bool accept(std::string_view characters);
    void expect(std::string_view characters) { m_good = accept(characters) && m_good; }

    /** Skips all of these characters that follow. */
    void skip(std::string_view characters);

    /** A number with exactly this many digits. */
    int number(int digits);
    /** A number of any length, limited to the largest of its type. */
    qint64 integer();
    /** A decimal fraction in thousandths; further digits are ignored. */
    int thousandths();

    /** The number, from 1, of the following name, in any case. @param names three letters each, without separators */
    int name(std::string_view names);

private:
    std::string_view m_rest;
    bool m_good = true;
};

} // namespace zel::tool

#endif
