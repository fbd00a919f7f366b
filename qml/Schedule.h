// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_QML_SCHEDULE_H
#define ZEL_QML_SCHEDULE_H

#include <QtCore/QHash>
#include <QtCore/QList>
#include <set>
#include <utility>

namespace zel::utility::i18n::qml {

class DateText;

/** The elements of an engine, and when the text of each is due; times in ms since the epoch. */
class Schedule
{
public:
    /** Adds an element, or changes when it is due: DatedText::never while it is not to be renewed. */
    void set(DateText* element, qint64 dueTime);
    void remove(DateText* element);

    QList<DateText*> elements() const { return m_dueTimes.keys(); }

    /** When the first element is due, or DatedText::never. */
    qint64 first() const;
    /** The elements that are due at a time, the first of them first. */
    QList<DateText*> dueAt(qint64 time) const;

private:
    QHash<DateText*, qint64> m_dueTimes;
    std::set<std::pair<qint64, DateText*>> m_order; // without those that are never due
};

} // namespace zel::utility::i18n::qml

#endif
