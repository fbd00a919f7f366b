// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "relative/RelativeDateTable.h"

#include "relative/RelativeDistance.h"
#include <algorithm>
#include <iterator>

namespace zel::utility::i18n {

namespace {

using Counting = RelativeDateTable::Counting;
using Side = RelativeDateTable::Side;
using Shown = RelativeDateTable::Shown;
using Slot = RelativeDateTable::Slot;

constexpr Slot timeCritical[] = {
    {RelativeDateElement::Years, 1, Counting::Calendar, Side::After, "yMMMM", Shown::Plain},
    {RelativeDateElement::NamedDays, 4, Counting::Calendar, Side::After, "MMMd", Shown::Plain},
    {RelativeDateElement::NamedDays, 2, Counting::Calendar, Side::After, "Ejm", Shown::Plain},
    {RelativeDateElement::NamedDays, 1, Counting::Calendar, Side::After, "Ejm", Shown::Relative},
    {RelativeDateElement::Hours, 1, Counting::Elapsed, Side::After, "H", Shown::Relative},
    {RelativeDateElement::Minutes, 0, Counting::Elapsed, Side::After, "m", Shown::Relative},
    {RelativeDateElement::Years, 1, Counting::Calendar, Side::AtOrBefore, "yMMMM", Shown::Plain},
    {RelativeDateElement::NamedDays, 4, Counting::Calendar, Side::AtOrBefore, "MMMd", Shown::Plain},
    {RelativeDateElement::NamedDays, 2, Counting::Calendar, Side::AtOrBefore, "Ejm", Shown::Plain},
    {RelativeDateElement::NamedDays, 1, Counting::Calendar, Side::AtOrBefore, "Ejm", Shown::Relative},
    {RelativeDateElement::Hours, 1, Counting::Elapsed, Side::AtOrBefore, "H", Shown::Relative},
    {RelativeDateElement::Minutes, 0, Counting::Elapsed, Side::AtOrBefore, "m", Shown::Relative},
};
constexpr Slot nonTimeCritical[] = {
    {RelativeDateElement::Years, 1, Counting::Calendar, Side::After, "yMMMM", Shown::Plain},
    {RelativeDateElement::NamedDays, 4, Counting::Calendar, Side::After, "MMMd", Shown::Plain},
    {RelativeDateElement::NamedDays, 2, Counting::Calendar, Side::After, "EEEE", Shown::Plain},
    {RelativeDateElement::NamedDays, 0, Counting::Elapsed, Side::After, "E", Shown::Relative},
    {RelativeDateElement::Years, 1, Counting::Calendar, Side::AtOrBefore, "yMMMM", Shown::Plain},
    {RelativeDateElement::NamedDays, 4, Counting::Calendar, Side::AtOrBefore, "MMMd", Shown::Plain},
    {RelativeDateElement::NamedDays, 2, Counting::Calendar, Side::AtOrBefore, "EEEE", Shown::Plain},
    {RelativeDateElement::NamedDays, 0, Counting::Elapsed, Side::AtOrBefore, "E", Shown::Relative},
};

// The count that a slot's range tests: calendar years or days, or elapsed units.
qint64 countOf(const Slot& slot, const RelativeDistance& distance)
{
    if (slot.counting == Counting::Elapsed) {
        return distance.difference(slot.element);
    }
    return slot.element == RelativeDateElement::Years ? distance.years() : distance.days();
}

bool takes(const Slot& slot, const RelativeDistance& distance)
{
    const qint64 count = countOf(slot, distance);
    return (count > 0) == (slot.side == Side::After) && qAbs(count) >= slot.minimum;
}

} // namespace

RelativeDateTable::RelativeDateTable(RelativeDateFormat::Type type)
{
    switch (type) {
    case RelativeDateFormat::TimeCritical:
        m_slots = timeCritical;
        m_size = std::size(timeCritical);
        break;
    case RelativeDateFormat::NonTimeCritical:
        m_slots = nonTimeCritical;
        m_size = std::size(nonTimeCritical);
        break;
    }
}

RelativeDateTable::Step RelativeDateTable::stepOf(const RelativeDistance& distance,
                                                  RelativeDateWording::Type wording) const
{
    const bool isNamed = wording == RelativeDateWording::Natural && isNear(distance.days());
    const int slot = isNamed ? slotOfNearDay(distance.days()) : slotOf(distance);
    if (at(slot).shown == Shown::Plain) {
        return {slot, 0};
    }
    const bool isDay = at(slot).element == RelativeDateElement::NamedDays;
    return {slot, static_cast<int>(isDay ? distance.days() : distance.difference(at(slot).element))};
}

bool RelativeDateTable::isNow(const Step& step, RelativeDateWording::Type wording) const
{
    return wording == RelativeDateWording::Natural && at(step.slot).element == RelativeDateElement::Minutes &&
           step.count == 0;
}

int RelativeDateTable::slotOf(const RelativeDistance& distance) const
{
    const auto* const slot = std::find_if(begin(), end(), [&](const Slot& each) { return takes(each, distance); });
    return static_cast<int>(slot - begin()); // the last slot accepts the rest
}

int RelativeDateTable::slotOfNearDay(qint64 days) const
{
    const auto* const slot = std::find_if(begin(), end(), [&](const Slot& each) {
        return each.element == RelativeDateElement::NamedDays &&
               each.side == (days > 0 ? Side::After : Side::AtOrBefore) && qAbs(days) >= each.minimum;
    });
    return static_cast<int>(slot - begin()); // every table has one
}

} // namespace zel::utility::i18n
