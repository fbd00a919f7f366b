// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_QML_TIMEKEEPER_H
#define ZEL_QML_TIMEKEEPER_H

#include "CustomDateSource.h"
#include "RelativeDateSource.h"
#include "Schedule.h"
#include "SourcePool.h"
#include "SystemClock.h"
#include <QtCore/QList>
#include <QtCore/QLocale>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QTimer>
#include <zel/utility/i18n/RelativeDateFormatter.h>

namespace zel::utility::i18n::qml {

class DateText;

/** Renews the texts of all elements of an engine when they are due, with one timer and as few calls as possible. */
class Timekeeper : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Timekeeper)

public:
    /** The timekeeper of the engine that created an object; null if none did. */
    static Timekeeper* of(const QObject* object);

    void add(DateText* element) { suspend(element); }
    void remove(DateText* element);

    /** Keeps the text of an element until renewLater(), or until settings change. */
    void suspend(DateText* element) { m_schedule.set(element, DatedText::never); }

    /** Renews an element with all others that wait, before the next frame. */
    void renewLater(DateText* element);

    /** Renews all elements that wait. */
    Q_INVOKABLE void renewWaiting();

    std::shared_ptr<RelativeDateSource> relativeDates(const RelativeDateStyle& style) { return m_relative.get(style); }
    std::shared_ptr<CustomDateSource> customDates(const QString& skeleton) { return m_custom.get(skeleton); }

    QLocale regionLocale() const { return m_settings.locale(); }

    /** The clock, the region or the time zone of the user has changed. Emitted after the elements have been updated. */
    Q_SIGNAL void settingsChanged();
    Q_SIGNAL void regionChanged();

private Q_SLOTS:
    void onTimeout();
    void onSettingsChanged();
    void renewAll();

private:
    explicit Timekeeper(QObject* parent);

    void makeAllDue();
    void renew(const QList<DateText*>& elements);
    void startTimer();

    RelativeDateFormatter m_settings;
    SystemClock m_clock;
    QTimer m_timer;
    SourcePool<RelativeDateSource> m_relative;
    SourcePool<CustomDateSource> m_custom;
    Schedule m_schedule;
    QSet<DateText*> m_waiting;
    qint64 m_lastTimeout;             // in ms since the epoch, as all times here
    qint64 m_transition = 0;          // of the time zone, the next one
    qint64 m_next = DatedText::never; // when the timer is to fire
};

} // namespace zel::utility::i18n::qml

#endif
