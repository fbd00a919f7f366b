#ifndef ZEL_TOOL_ANSWERS_H
#define ZEL_TOOL_ANSWERS_H

#include <QtCore/QDateTime>
#include <QtCore/QString>

namespace zel::tool {

class Console;

/** Writes the texts for moments, one a line, as they are or as JSON beside the moment. */
class Answers
{
public:
    Answers(Console& console, bool json) : m_console(console), m_json(json) {}

    /** An empty text is a Failure. */
    void write(const QDateTime& moment, const QString& text) const;

    /** The same with the moment at which the text changes, which is invalid for a text that never does. */
    void write(const QDateTime& moment, const QString& text, const QDateTime& until) const;

private:
    Console& m_console;
    bool m_json;
};

} // namespace zel::tool

#endif
