#include "Answers.h"

#include "Console.h"
#include "Failure.h"
#include "Moment.h"

namespace zel::tool {

void Answers::write(const QDateTime& moment, const QString& text) const
{
    if (text.isEmpty()) {
        throw Failure(QStringLiteral("no text for ") + Moment::write(moment));
    }
    if (m_json) {
        m_console.json({{QStringLiteral("moment"), Moment::write(moment)}, {QStringLiteral("text"), text}});
    } else {
        m_console.line(text);
    }
}

} // namespace zel::tool
