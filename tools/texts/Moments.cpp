// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "texts/Moments.h"

#include "terminal/LineAnswers.h"

namespace zel::tool {

Moments::Moments(const QStringList& words, const MomentReader& reader)
    : m_reader(reader),
      m_fromInput(words == QStringList(QStringLiteral("-")))
{
    if (m_fromInput) {
        return;
    }
    if (words.isEmpty()) {
        m_moments.append(QDateTime::currentDateTime());
    }
    for (const QString& word : words) {
        if (word == QLatin1String("-")) {
            throw Failure::usage(QStringLiteral("'-' for standard input cannot be combined with other moments"));
        }
        m_moments.append(m_reader.read(word));
    }
}

ExitStatus Moments::format(Console& console, bool json, const Formatter& formatter, const Writer& writer) const
{
    if (m_fromInput) {
        const auto read = [this](std::string_view line) { return m_reader.read(line); };
        return LineAnswers(console, json).run(read, formatter, writer);
    }
    const QStringList texts = formatter(m_moments);
    for (int i = 0; i < m_moments.size(); ++i) {
        writer(m_moments[i], texts[i]);
    }
    return Worked;
}

} // namespace zel::tool
