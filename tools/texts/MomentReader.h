#ifndef ZEL_TOOL_MOMENTREADER_H
#define ZEL_TOOL_MOMENTREADER_H

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QTimeZone>
#include <string_view>

namespace zel::tool {

/** Reads moments for commands, some of them as the clock of the device shows them. Takes the time zone of the device
 * once. */
class MomentReader
{
public:
    /** What becomes of the date and the time of a moment that is written with an offset. */
    enum Offsets {
        Kept,     ///< they stay as they are written
        Converted ///< they become those of the device, or of the process where the device has no time zone
    };

    explicit MomentReader(Offsets offsets);

    /**
     * Moment::parse(), with the offset treated as chosen. Seconds since 1970 have no date and time of their own and get
     * those of the device, or of GMT where it has no time zone and offsets are kept.
     */
    QDateTime read(std::string_view text) const;
    QDateTime read(const QString& text) const { return read(std::string_view(text.toStdString())); }

    /** The current time as the clock of the device shows it. */
    QDateTime now() const { return QDateTime::currentDateTimeUtc().toTimeZone(m_zone); }

private:
    Offsets m_offsets;
    QTimeZone m_zone;
};

} // namespace zel::tool

#endif
