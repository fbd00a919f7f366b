// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_RELATIVE_DATEOFFSETRANGE_H
#define ZEL_UTILITY_I18N_RELATIVE_DATEOFFSETRANGE_H

#include "relative/RelativeDateElement.h"
#include <QtCore/QDateTime>
#include <QtCore/QObject>

namespace zel::utility::i18n {

/**
 * The moments at least a number of units before or after an anchor.
 *
 * @code
 * const DateOffsetRange range(anchor, RelativeDateElement::NamedDays, 1, true, true, nullptr);
 * range.contains(anchor.addDays(-1)); // true
 * @endcode
 */
class DateOffsetRange : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DateOffsetRange)

public:
    /**
     * @param minimum the smallest distance in the range, in either direction
     * @param absolute true to count calendar positions, false to count elapsed time
     * @param past true for counts of 0 and below, false for those above 0
     */
    DateOffsetRange(const QDateTime& anchorTime, RelativeDateElement::Type element, unsigned int minimum, bool absolute,
                    bool past, QObject* parent);
    ~DateOffsetRange() override = default;

    void setAnchorTime(const QDateTime& anchorTime) { m_anchorTime = anchorTime; }

    bool contains(const QDateTime& dateTime) const;

private:
    RelativeDateElement::Type m_element;
    unsigned int m_minimum;
    bool m_absolute;
    bool m_past;
    QDateTime m_anchorTime;
};

} // namespace zel::utility::i18n

#endif
