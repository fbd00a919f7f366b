#ifndef ZEL_TOOL_MOMENTS_H
#define ZEL_TOOL_MOMENTS_H

#include "Failure.h"
#include <functional>
#include <QtCore/QDateTime>
#include <QtCore/QStringList>

namespace zel::tool {

class Console;

/** The moments that a command was given: as words, as lines of standard input for the single word "-", or now. */
class Moments
{
public:
    using Handler = std::function<void(const QDateTime&)>;

    explicit Moments(const QStringList& words);

    /**
     * Hands each moment to the handler. Words are all looked at before the first is handed over; a bad line is reported
     * and passed over, and so is one for which the handler fails.
     */
    ExitStatus forEach(Console& console, const Handler& handler) const;

private:
    bool m_fromInput;
    QList<QDateTime> m_moments;
};

} // namespace zel::tool

#endif
