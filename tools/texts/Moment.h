#ifndef ZEL_TOOL_MOMENT_H
#define ZEL_TOOL_MOMENT_H

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <string_view>

namespace zel::tool {

/** Moments as the command line writes them: ISO 8601. */
class Moment
{
public:
    Moment() = delete;

    /**
     * A date alone, which is midnight, or a date and a time with or without seconds, a fraction of them, and `Z` or an
     * offset. Without an offset it is the local time of the process. Anything else is a Failure.
     */
    static QDateTime parse(std::string_view text);
    static QDateTime parse(const QString& text) { return parse(std::string_view(text.toStdString())); }

    static QString write(const QDateTime& moment);
};

} // namespace zel::tool

#endif
