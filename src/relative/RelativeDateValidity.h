// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_RELATIVE_RELATIVEDATEVALIDITY_H
#define ZEL_UTILITY_I18N_RELATIVE_RELATIVEDATEVALIDITY_H

#include "relative/RelativeDateTable.h"
#include <optional>
#include <QtCore/QDateTime>

namespace zel::utility::i18n {

/**
 * The time until which the text of a moment stays the same while the anchor advances.
 *
 * @code
 * const RelativeDateValidity validity(RelativeDateTable(RelativeDateFormat::TimeCritical), RelativeDateWording::Exact);
 * validity.until(noon, noon.addSecs(-300)); // 12:01, when "5 minutes ago" becomes "6 minutes ago"
 * @endcode
 */
class RelativeDateValidity
{
public:
    RelativeDateValidity(const RelativeDateTable& table, RelativeDateWording::Type wording)
        : m_table(table),
          m_wording(wording)
    {
    }

    /** The first later anchor with another text, in the time zone of the given one; invalid if there is none. */
    QDateTime until(const QDateTime& anchor, const QDateTime& moment) const;

private:
    using Step = RelativeDateTable::Step;

    Step stepAt(qint64 anchor, qint64 moment) const;
    bool isSame(const Step& one, const Step& other) const;
    std::optional<qint64> nextChange(qint64 anchor, qint64 moment) const;
    std::optional<qint64> nextCandidate(const Step& step, qint64 anchor, qint64 moment) const;

    RelativeDateTable m_table;
    RelativeDateWording::Type m_wording;
};

} // namespace zel::utility::i18n

#endif
