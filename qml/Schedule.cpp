// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "Schedule.h"

#include "TextSource.h"

namespace zel::utility::i18n::qml {

void Schedule::set(DateText* element, qint64 dueTime)
{
    const auto known = m_dueTimes.constFind(element);
    if (known != m_dueTimes.constEnd()) {
        if (*known == dueTime) {
            return;
        }
        m_order.erase({*known, element});
    }
    m_dueTimes.insert(element, dueTime);
    if (dueTime != DatedText::never) {
        m_order.insert({dueTime, element});
    }
}

void Schedule::remove(DateText* element)
{
    set(element, DatedText::never);
    m_dueTimes.remove(element);
}

qint64 Schedule::first() const
{
    return m_order.empty() ? DatedText::never : m_order.begin()->first;
}

QList<DateText*> Schedule::dueAt(qint64 time) const
{
    QList<DateText*> elements;
    for (auto entry = m_order.begin(); entry != m_order.end() && entry->first <= time; ++entry) {
        elements.append(entry->second);
    }
    return elements;
}

} // namespace zel::utility::i18n::qml
