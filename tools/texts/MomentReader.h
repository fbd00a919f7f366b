// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_MOMENTREADER_H
#define ZEL_TOOL_MOMENTREADER_H

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QTimeZone>
#include <string_view>

namespace zel::tool {

/** Reads moments for commands, in the time zone of the device where needed. */
class MomentReader
{
public:
    /** The treatment of moments with an offset. */
    enum Offsets {
        Kept,     ///< date and time stay as written
        Converted ///< converted to the time zone of the device, or of the process if the device has none
    };

    /** @param zone the time zone of the device; invalid if it has none */
    MomentReader(Offsets offsets, const QTimeZone& zone);

    /**
     * Moment::parse(), with offsets treated as chosen. Seconds since 1970 are converted to the time zone of the device;
     * if it has none and offsets are kept, to GMT.
     */
    QDateTime read(std::string_view text) const;
    QDateTime read(const QString& text) const { return read(std::string_view(text.toStdString())); }

    /** The current time in the time zone of the device. */
    QDateTime now() const { return QDateTime::currentDateTimeUtc().toTimeZone(m_zone); }

private:
    Offsets m_offsets;
    QTimeZone m_zone;
    QTimeZone m_zoneOfReadings; // of moments without an offset; invalid for local time
};

} // namespace zel::tool

#endif
