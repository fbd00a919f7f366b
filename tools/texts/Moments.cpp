#include "texts/Moments.h"

#include "terminal/LineReader.h"

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
            throw Failure::usage(QStringLiteral("'-' for standard input does not go with other moments"));
        }
        m_moments.append(m_reader.read(word));
    }
}

ExitStatus Moments::format(Console& console, const Formatter& formatter, const Writer& writer) const
{
    if (m_fromInput) {
        return formatLines(console, formatter, writer);
    }
    const QStringList texts = formatter(m_moments);
    for (int i = 0; i < m_moments.size(); ++i) {
        writer(m_moments[i], texts[i]);
    }
    return Worked;
}

ExitStatus Moments::formatLines(Console& console, const Formatter& formatter, const Writer& writer) const
{
    ExitStatus status = Worked;
    LineReader reader(console);
    QList<QDateTime> moments;
    QList<qlonglong> lines;
    const auto complain = [&](qlonglong line, const Failure& failure) {
        reader.complain(line, failure);
        status = NoAnswer;
    };
    const auto writeBatch = [&] {
        const QStringList texts = formatter(moments);
        for (int i = 0; i < moments.size(); ++i) {
            try {
                writer(moments[i], texts[i]);
            } catch (const Failure& failure) {
                complain(lines[i], failure);
            }
        }
        moments.clear();
        lines.clear();
    };
    while (const auto line = reader.next()) {
        try {
            moments.append(m_reader.read(*line));
            lines.append(reader.number());
        } catch (const Failure& failure) {
            writeBatch();
            complain(reader.number(), failure);
        }
        if (!reader.hasLine()) {
            writeBatch();
        }
    }
    return status;
}

} // namespace zel::tool
