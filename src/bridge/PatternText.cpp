// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "bridge/PatternText.h"

#include <QtCore/QLatin1Char>

namespace zel::utility::i18n {

PatternText::PatternText(const QString& pattern) : m_text(pattern)
{
    if (!m_text.contains(QLatin1Char('\''))) {
        return;
    }
    m_quoted.reserve(static_cast<std::size_t>(m_text.size()));
    // A doubled apostrophe closes and opens quotes, or the reverse, and so changes nothing.
    bool quoted = false;
    for (const QChar c : m_text) {
        m_quoted.push_back(quoted);
        quoted ^= c == QLatin1Char('\'');
    }
}

bool PatternText::isField(int position) const
{
    const QChar c = m_text.at(position);
    return !isQuoted(position) && c.unicode() < 0x80 && c.isLetter();
}

QString PatternText::fields() const
{
    QString letters;
    for (int i = 0; i < m_text.size(); ++i) {
        if (isField(i)) {
            letters += m_text.at(i);
        }
    }
    return letters;
}

int PatternText::indexOf(QChar character, int from, Qt::CaseSensitivity cs) const
{
    auto position = static_cast<int>(m_text.indexOf(character, from, cs));
    while (position != -1 && isQuoted(position)) {
        position = static_cast<int>(m_text.indexOf(character, position + 1, cs));
    }
    return position;
}

int PatternText::endOfQuoted(int position) const
{
    constexpr QLatin1Char apostrophe('\'');
    const bool opens = position < m_text.size() && m_text.at(position) == apostrophe && !isQuoted(position);
    const auto close = static_cast<int>(opens ? m_text.indexOf(apostrophe, position + 1) : -1);
    return close == -1 ? position : close + 1;
}

int PatternText::lastIndexOf(const QString& text) const
{
    auto position = static_cast<int>(m_text.lastIndexOf(text));
    while (position > 0 && isQuoted(position)) {
        position = static_cast<int>(m_text.lastIndexOf(text, position - 1));
    }
    return position;
}

} // namespace zel::utility::i18n
