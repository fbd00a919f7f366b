// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "RelativeDateSource.h"

namespace zel::utility::i18n::qml {

bool RelativeDateStyle::operator==(const RelativeDateStyle& other) const
{
    return table == other.table && locale == other.locale && clockFormat == other.clockFormat &&
           wording == other.wording;
}

RelativeDateSource::RelativeDateSource(const RelativeDateStyle& style) : m_style(style), m_formatter(style.table)
{
    m_formatter.setLocale(style.locale);
    m_formatter.setClockFormat(style.clockFormat);
    m_formatter.setWording(style.wording);
}

QDateTime RelativeDateSource::reading(const QDateTime& dateTime)
{
    const QDateTime local = dateTime.toLocalTime();
    QDateTime reading = local.toUTC();
    reading.setDate(local.date());
    reading.setTime(local.time());
    return reading;
}

QList<DatedText> RelativeDateSource::texts(const QList<QDateTime>& moments, const QDateTime& anchor)
{
    const QDateTime anchorReading = reading(anchor);
    const qint64 offset = anchorReading.toMSecsSinceEpoch() - anchor.toMSecsSinceEpoch();
    setAnchor(anchorReading);
    const QStringList texts = m_formatter.formatAll(moments);
    QList<DatedText> result;
    result.reserve(moments.size());
    for (qsizetype i = 0; i < moments.size(); ++i) {
        const QDateTime until = m_formatter.validUntil(moments.at(i));
        result.append({texts.at(i), until.isValid() ? until.toMSecsSinceEpoch() - offset : DatedText::never});
    }
    return result;
}

QDateTime RelativeDateSource::validUntil(const QDateTime& moment, const QDateTime& anchor)
{
    setAnchor(anchor);
    return m_formatter.validUntil(moment.toLocalTime());
}

// The formatter keeps an anchor of the same instant, though a reading in UTC and a local time show different hours.
void RelativeDateSource::setAnchor(const QDateTime& anchor)
{
    m_formatter.setAnchorTime({});
    m_formatter.setAnchorTime(anchor);
}

} // namespace zel::utility::i18n::qml
