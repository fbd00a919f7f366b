// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_RELATIVE_RELATIVEDATETABLE_H
#define ZEL_UTILITY_I18N_RELATIVE_RELATIVEDATETABLE_H

#include "relative/RelativeDateElement.h"
#include <QtCore/QtGlobal>
#include <zel/utility/i18n/RelativeDateFormat.h>
#include <zel/utility/i18n/RelativeDateWording.h>

namespace zel::utility::i18n {

class RelativeDistance;

/**
 * The slots of a relative date formatter. The first slot that accepts a moment formats it: the after side comes first,
 * and on each side the coarsest test.
 *
 * @code
 * const RelativeDateTable table(RelativeDateFormat::TimeCritical);
 * const RelativeDistance distance(anchor, anchor - 300'000);
 * table.stepOf(distance, RelativeDateWording::Exact); // slot 11, count -5: "5 minutes ago"
 * @endcode
 */
class RelativeDateTable
{
public:
    enum class Counting { Calendar, Elapsed };
    enum class Side { After, AtOrBefore };
    enum class Shown { Plain, Relative };

    /** The moments that a slot accepts, and how it formats them. */
    struct Slot
    {
        RelativeDateElement::Type element;
        unsigned int minimum;
        Counting counting;
        Side side;
        const char* skeleton;
        Shown shown;
    };

    /** The slot that formats a moment, and the count in its text; 0 if the text shows none. */
    struct Step
    {
        int slot;
        int count;
    };

    /** Near days are up to this many calendar days away, and formatted by name or weekday. */
    static constexpr qint64 lastNearDay = 3;

    /** The table of a type; empty for an invalid type. */
    explicit RelativeDateTable(RelativeDateFormat::Type type);

    const Slot* begin() const { return m_slots; }
    const Slot* end() const { return m_slots + m_size; }
    int size() const { return m_size; }
    const Slot& at(int slot) const { return m_slots[slot]; }

    /** The step for a distance. Do not call on an empty table. */
    Step stepOf(const RelativeDistance& distance, RelativeDateWording::Type wording) const;

    /** Whether the text of a step is the word for now. */
    bool isNow(const Step& step, RelativeDateWording::Type wording) const;

    /** Whether a day is near, but not today; by its calendar days from the anchor, negative before it. */
    static bool isNear(qint64 days) { return days != 0 && qAbs(days) <= lastNearDay; }

private:
    int slotOf(const RelativeDistance& distance) const;
    int slotOfNearDay(qint64 days) const;

    const Slot* m_slots = nullptr;
    int m_size = 0;
};

} // namespace zel::utility::i18n

#endif
