// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "Schedule.h"

#include "DateText.h"
#include <algorithm>
#include <functional>

namespace zel::utility::i18n::qml {

void Schedule::set(DateText* element, qint64 dueTime)
{
    auto known = m_dueTimes.find(element);
    if (known == m_dueTimes.end()) {
        known = m_dueTimes.insert(element, DatedText::never);
    }
    if (std::exchange(*known, dueTime) != dueTime && dueTime != DatedText::never) {
        m_heap.emplace_back(dueTime, element);
        std::push_heap(m_heap.begin(), m_heap.end(), std::greater<>());
        dropOutdated();
    }
}

void Schedule::remove(DateText* element)
{
    m_dueTimes.remove(element);
}

qint64 Schedule::first()
{
    while (!m_heap.empty() && !isCurrent(m_heap.front())) {
        pop();
    }
    return m_heap.empty() ? DatedText::never : m_heap.front().first;
}

QList<DateText*> Schedule::take(qint64 time, qsizetype count)
{
    QList<DateText*> elements;
    while (elements.size() < count && first() <= time) {
        elements.append(m_heap.front().second);
        m_dueTimes[elements.last()] = DatedText::never;
        pop();
    }
    return elements;
}

void Schedule::pop()
{
    std::pop_heap(m_heap.begin(), m_heap.end(), std::greater<>());
    m_heap.pop_back();
}

// Without this, an element that changes all the time would fill the heap.
void Schedule::dropOutdated()
{
    if (m_heap.size() <= 4 * static_cast<std::size_t>(m_dueTimes.size())) {
        return;
    }
    m_heap.clear();
    for (auto known = m_dueTimes.constBegin(); known != m_dueTimes.constEnd(); ++known) {
        if (*known != DatedText::never) {
            m_heap.emplace_back(*known, known.key());
        }
    }
    std::make_heap(m_heap.begin(), m_heap.end(), std::greater<>());
}

} // namespace zel::utility::i18n::qml
