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

int PatternText::lastIndexOf(const QString& text) const
{
    auto position = static_cast<int>(m_text.lastIndexOf(text));
    while (position > 0 && isQuoted(position)) {
        position = static_cast<int>(m_text.lastIndexOf(text, position - 1));
    }
    return position;
}

} // namespace zel::utility::i18n
