// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "texts/Scanner.h"

#include <algorithm>
#include <limits>

namespace zel::tool {

bool Scanner::accept(std::string_view characters)
{
    const bool found = startsWith(characters);
    if (found) {
        m_rest.remove_prefix(1);
    }
    return found;
}

void Scanner::skip(std::string_view characters)
{
    while (accept(characters)) {
    }
}

int Scanner::number(int digits)
{
    int value = 0;
    for (; digits > 0 && startsWithDigit(); --digits) {
        value = value * 10 + (m_rest.front() - '0');
        m_rest.remove_prefix(1);
    }
    m_good = m_good && digits == 0;
    return value;
}

qint64 Scanner::integer()
{
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    qint64 value = 0;
    m_good = m_good && startsWithDigit();
    for (; startsWithDigit(); m_rest.remove_prefix(1)) {
        const int digit = m_rest.front() - '0';
        value = value > (largest - digit) / 10 ? largest : value * 10 + digit;
    }
    return value;
}

int Scanner::thousandths()
{
    int value = 0;
    int unit = 100;
    m_good = m_good && startsWithDigit();
    for (; startsWithDigit(); unit /= 10) {
        value += (m_rest.front() - '0') * unit;
        m_rest.remove_prefix(1);
    }
    return value;
}

int Scanner::name(std::string_view names)
{
    constexpr std::size_t length = 3;
    const auto isSameLetter = [](char one, char other) { return (one | ' ') == (other | ' '); }; // of ASCII
    for (std::size_t begin = 0; begin < names.size() && m_rest.size() >= length; begin += length) {
        if (std::equal(m_rest.begin(), m_rest.begin() + length, names.begin() + begin, isSameLetter)) {
            m_rest.remove_prefix(length);
            return static_cast<int>(begin / length) + 1;
        }
    }
    m_good = false;
    return 0;
}

} // namespace zel::tool
