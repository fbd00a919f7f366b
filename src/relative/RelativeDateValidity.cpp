// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "relative/RelativeDateValidity.h"

#include "relative/RelativeDistance.h"
#include <algorithm>
#include <QtCore/QLatin1String>
#include <QtCore/QTimeZone>

namespace zel::utility::i18n {

namespace {

constexpr qint64 lastNearDay = RelativeDateTable::lastNearDay;

// The next change of the zone's offset after an instant, both in ms since the epoch.
std::optional<qint64> nextTransition(const QDateTime& dateTime, qint64 instant)
{
    if (dateTime.timeSpec() != Qt::LocalTime && dateTime.timeSpec() != Qt::TimeZone) {
        return std::nullopt;
    }
    // Set in UTC: a local time may denote two instants.
    QDateTime utc = dateTime.toUTC();
    utc.setMSecsSinceEpoch(instant);
    const QDateTime next = dateTime.timeZone().nextTransition(utc).atUtc;
    const bool isLater = next.isValid() && next.toMSecsSinceEpoch() > instant;
    return isLater ? std::make_optional(next.toMSecsSinceEpoch()) : std::nullopt;
}

QDateTime inZoneOf(QDateTime dateTime, qint64 msSinceEpoch)
{
    dateTime.setMSecsSinceEpoch(msSinceEpoch);
    return dateTime;
}

// The first reading of the anchor with another count of whole units.
qint64 nextCount(qint64 anchor, qint64 moment, qint64 unit)
{
    const qint64 ahead = (moment - anchor) / unit;
    return ahead > 0 ? moment - ahead * unit + 1 : moment + (1 - ahead) * unit;
}

} // namespace

QDateTime RelativeDateValidity::until(const QDateTime& anchor, const QDateTime& moment) const
{
    const qint64 target = RelativeDistance::reading(moment);
    if (!anchor.isValid() || m_table.size() == 0 || !RelativeDistance::covers(target)) {
        return {};
    }
    const Step present = stepAt(RelativeDistance::reading(anchor), target);
    for (qint64 instant = anchor.toMSecsSinceEpoch();;) {
        const qint64 reading = RelativeDistance::reading(inZoneOf(anchor, instant));
        const std::optional<qint64> change =
            RelativeDistance::covers(reading) ? nextChange(reading, target) : std::nullopt;
        if (!change) {
            return {};
        }
        const qint64 changed = instant + *change - reading;
        const std::optional<qint64> transition = nextTransition(anchor, instant);
        if (!transition || changed < *transition) {
            return inZoneOf(anchor, changed);
        }
        instant = *transition;
        if (!isSame(stepAt(RelativeDistance::reading(inZoneOf(anchor, instant)), target), present)) {
            return inZoneOf(anchor, instant);
        }
    }
}

RelativeDateTable::Step RelativeDateValidity::stepAt(qint64 anchor, qint64 moment) const
{
    return m_table.stepOf(RelativeDistance(anchor, moment), m_wording);
}

// The two sides of a table have steps with the same text.
bool RelativeDateValidity::isSame(const Step& one, const Step& other) const
{
    return one.count == other.count &&
           QLatin1String(m_table.at(one.slot).skeleton) == QLatin1String(m_table.at(other.slot).skeleton);
}

std::optional<qint64> RelativeDateValidity::nextChange(qint64 anchor, qint64 moment) const
{
    const Step present = stepAt(anchor, moment);
    Step step = present;
    while (isSame(step, present)) {
        const std::optional<qint64> candidate = nextCandidate(step, anchor, moment);
        if (!candidate) {
            return std::nullopt;
        }
        anchor = *candidate;
        step = stepAt(anchor, moment);
    }
    return anchor;
}

// No other step begins before the candidate.
std::optional<qint64> RelativeDateValidity::nextCandidate(const Step& step, qint64 anchor, qint64 moment) const
{
    const qint64 today = RelativeDistance::day(anchor);
    const qint64 that = RelativeDistance::day(moment);
    const qint64 midnight = (today + 1) * RelativeDistance::msPerDay;
    const RelativeDateTable::Slot& slot = m_table.at(step.slot);
    switch (slot.element) {
    case RelativeDateElement::Minutes:
        return std::min(midnight, nextCount(anchor, moment, RelativeDistance::msPerMinute));
    case RelativeDateElement::Hours:
        return std::min(midnight, nextCount(anchor, moment, RelativeDistance::msPerHour));
    case RelativeDateElement::Years: {
        if (that < today) {
            return std::nullopt;
        }
        const qint64 sameYear = RelativeDistance::firstDay(RelativeDistance::year(that));
        const qint64 named = m_wording == RelativeDateWording::Natural ? that - lastNearDay : sameYear;
        return std::max(midnight, std::min(sameYear, named) * RelativeDistance::msPerDay);
    }
    case RelativeDateElement::NamedDays:
        break;
    }
    if (that - today > lastNearDay) {
        return (that - lastNearDay) * RelativeDistance::msPerDay;
    }
    if (today - that > lastNearDay) {
        return RelativeDistance::firstDay(RelativeDistance::year(today) + 1) * RelativeDistance::msPerDay;
    }
    return midnight;
}

} // namespace zel::utility::i18n
