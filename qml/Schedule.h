// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_QML_SCHEDULE_H
#define ZEL_QML_SCHEDULE_H

#include "TextSource.h"
#include <QtCore/QHash>
#include <QtCore/QList>
#include <utility>
#include <vector>

namespace zel::utility::i18n::qml {

class DateText;

/** The elements of an engine, and when the text of each is due; times in ms since the epoch. */
class Schedule
{
public:
    /** Adds an element, or changes its due time: DatedText::never if its text stays as it is. */
    void set(DateText* element, qint64 dueTime);
    void remove(DateText* element);

    QList<DateText*> elements() const { return m_dueTimes.keys(); }

    /** When the first element is due, or DatedText::never. */
    qint64 first();
    /** Takes the elements that are due at a time, up to a number of them. After that, set() makes them due again. */
    QList<DateText*> take(qint64 time, qsizetype count);

private:
    using Entry = std::pair<qint64, DateText*>;

    bool isCurrent(const Entry& entry) const { return m_dueTimes.value(entry.second, DatedText::never) == entry.first; }
    void pop();
    void dropOutdated();

    QHash<DateText*, qint64> m_dueTimes;
    std::vector<Entry> m_heap; // the first on top; entries that are out of date stay until their turn
};

} // namespace zel::utility::i18n::qml

#endif
