#ifndef ZEL_TOOL_MOMENTS_H
#define ZEL_TOOL_MOMENTS_H

#include "terminal/Failure.h"
#include <functional>
#include <QtCore/QDateTime>
#include <QtCore/QStringList>

namespace zel::tool {

class Console;

/** The moments that a command was given: as words, as lines of standard input for the single word "-", or now. */
class Moments
{
public:
    using Formatter = std::function<QStringList(const QList<QDateTime>&)>;
    using Writer = std::function<void(const QDateTime&, const QString&)>;

    explicit Moments(const QStringList& words);

    /**
     * Formats all moments and hands each text to the writer. Words are all looked at before the first is formatted;
     * lines are formatted together as far as they are there already. A bad line is reported and passed over, and so is
     * one for which the writer fails.
     */
    ExitStatus format(Console& console, const Formatter& formatter, const Writer& writer) const;

private:
    static ExitStatus formatLines(Console& console, const Formatter& formatter, const Writer& writer);

    bool m_fromInput;
    QList<QDateTime> m_moments;
};

} // namespace zel::tool

#endif
