// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "texts/MomentReader.h"

#include "texts/Moment.h"

namespace zel::tool {

// The fallback for converted moments is local time, as for moments without an offset, so that the two can be compared.
MomentReader::MomentReader(Offsets offsets, const QTimeZone& zone) : m_offsets(offsets), m_zone(zone)
{
    if (offsets == Converted) {
        m_zoneOfReadings = m_zone;
    }
    if (!m_zone.isValid()) {
        m_zone = offsets == Kept ? QTimeZone("GMT") : QTimeZone::systemTimeZone();
    }
}

QDateTime MomentReader::read(std::string_view text) const
{
    QDateTime moment = Moment::parse(text, m_zoneOfReadings);
    const bool converts = moment.timeSpec() != Qt::LocalTime && (m_offsets == Converted || Moment::isEpoch(text));
    if (converts) {
        moment = moment.toTimeZone(m_zone);
        const int year = moment.date().year();
        Moment::require(year >= 1 && year <= 9999, text, QStringLiteral(" is outside the years 1 to 9999"));
    }
    return moment;
}

} // namespace zel::tool
