#include "Moments.h"

#include "LineReader.h"
#include "Moment.h"

namespace zel::tool {

Moments::Moments(const QStringList& words) : m_fromInput(words == QStringList(QStringLiteral("-")))
{
    if (m_fromInput) {
        return;
    }
    if (words.isEmpty()) {
        m_moments.append(QDateTime::currentDateTime());
    }
    for (const QString& word : words) {
        if (word == QLatin1String("-")) {
            throw Failure::usage(QStringLiteral("'-' for standard input does not go with other moments"));
        }
        m_moments.append(Moment::parse(word));
    }
}

ExitStatus Moments::forEach(Console& console, const Handler& handler) const
{
    if (m_fromInput) {
        return LineReader::forEach(console, [&](std::string_view line) { handler(Moment::parse(line)); });
    }
    for (const QDateTime& moment : m_moments) {
        handler(moment);
    }
    return Worked;
}

} // namespace zel::tool
