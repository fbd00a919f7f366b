// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "relative/DateOffsetRange.h"

#include "relative/RelativeDate.h"

namespace zel::utility::i18n {

DateOffsetRange::DateOffsetRange(const QDateTime& anchorTime, RelativeDateElement::Type element, unsigned int minimum,
                                 bool absolute, bool past, QObject* parent)
    : QObject(parent),
      m_element(element),
      m_minimum(minimum),
      m_absolute(absolute),
      m_past(past),
      m_anchorTime(anchorTime)
{
}

bool DateOffsetRange::contains(const QDateTime& dateTime) const
{
    const int count = m_absolute ? RelativeDate::offset(m_anchorTime, dateTime, m_element)
                                 : RelativeDate::difference(m_anchorTime, dateTime, m_element, false);
    const bool after = count > 0;
    const unsigned int distance = after ? static_cast<unsigned int>(count) : 0U - static_cast<unsigned int>(count);
    return after != m_past && distance >= m_minimum;
}

} // namespace zel::utility::i18n
