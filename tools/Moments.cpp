#include "Moments.h"

#include "Console.h"
#include "LineReader.h"
#include "Moment.h"

namespace zel::tool {

namespace {

std::string_view withoutCarriageReturn(std::string_view line)
{
    return line.substr(0, line.size() - (!line.empty() && line.back() == '\r' ? 1 : 0));
}

} // namespace

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
        return forEachLine(console, handler);
    }
    for (const QDateTime& moment : m_moments) {
        handler(moment);
    }
    return Worked;
}

ExitStatus Moments::forEachLine(Console& console, const Handler& handler)
{
    ExitStatus status = Worked;
    LineReader reader(console);
    qlonglong number = 0;
    while (const auto line = reader.next()) {
        ++number;
        try {
            handler(Moment::parse(withoutCarriageReturn(*line)));
        } catch (const Failure& failure) {
            console.complain(QStringLiteral("line %1: ").arg(number) + failure.text());
            status = NoAnswer;
        }
    }
    return status;
}

} // namespace zel::tool
