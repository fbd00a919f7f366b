// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "Timekeeper.h"

#include "DateText.h"
#include <algorithm>
#include <map>
#include <QtCore/QPointer>
#include <QtCore/QTimeZone>
#include <QtQml/QQmlEngine>
#include <utility>

namespace zel::utility::i18n::qml {

namespace {

// In ms. A clock that is not watched may be set while the timer runs.
constexpr qint64 longestWait = 86400000;
constexpr qint64 longestWaitUnwatched = 60000;

// In ms. Texts that are due within one frame are renewed together.
constexpr qint64 frame = 16;

// How many texts are renewed before other events have their turn, so that no frame is missed.
constexpr qsizetype blockSize = 1000;

// A transition of the time zone, or the next one where that is past; both in ms since the epoch.
qint64 later(qint64 transition, qint64 now)
{
    if (transition > now) {
        return transition;
    }
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(now, QTimeZone::utc());
    const QDateTime next = QTimeZone::systemTimeZone().nextTransition(time).atUtc;
    return next.isValid() ? next.toMSecsSinceEpoch() : DatedText::never;
}

struct MadeText
{
    QPointer<DateText> element;
    quint32 revision;
    DatedText text;
};

// Elements with the same source and anchor, whose texts are made in one call.
struct Batch
{
    QDateTime anchor;
    QList<QDateTime> moments;
    QList<DateText*> elements;
};

QList<MadeText> makeTexts(const QList<DateText*>& elements, const QDateTime& now)
{
    QList<MadeText> made;
    made.reserve(elements.size());
    std::map<std::pair<TextSource*, qint64>, Batch> batches;
    for (DateText* const element : elements) {
        if (!element->hasMoment()) {
            made.append({element, element->revision(), DatedText()});
            continue;
        }
        const QDateTime anchor = element->fixedAnchor();
        Batch& batch = batches[{&element->source(), anchor.isValid() ? anchor.toMSecsSinceEpoch() : DatedText::never}];
        batch.anchor = anchor.isValid() ? anchor : now;
        batch.moments.append(element->sourceMoment());
        batch.elements.append(element);
    }
    for (const auto& [key, batch] : batches) {
        const QList<DatedText> texts = key.first->texts(batch.moments, batch.anchor);
        for (qsizetype i = 0; i < texts.size(); ++i) {
            DateText* const element = batch.elements.at(i);
            made.append({element, element->revision(), texts.at(i)});
        }
    }
    return made;
}

} // namespace

Timekeeper* Timekeeper::of(const QObject* object)
{
    QQmlEngine* const engine = qmlEngine(object);
    if (engine == nullptr) {
        return nullptr;
    }
    auto* const existing = engine->findChild<Timekeeper*>(QString(), Qt::FindDirectChildrenOnly);
    return existing != nullptr ? existing : new Timekeeper(engine);
}

Timekeeper::Timekeeper(QObject* parent)
    : QObject(parent),
      m_settings(RelativeDateFormat::TimeCritical),
      m_clock(nullptr),
      m_lastTimeout(QDateTime::currentMSecsSinceEpoch())
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    const bool connected = connect(&m_timer, SIGNAL(timeout()), this, SLOT(onTimeout())) &&
                           connect(&m_clock, SIGNAL(changed()), this, SLOT(renewAll())) &&
                           m_settings.connectToSettings(this, SLOT(onSettingsChanged()));
    if (!connected) {
        qCritical("Zel.Utility.I18n cannot follow the time and the settings");
    }
}

void Timekeeper::remove(DateText* element)
{
    m_schedule.remove(element);
    m_waiting.remove(element);
}

void Timekeeper::renewLater(DateText* element)
{
    if (m_waiting.isEmpty()) {
        QMetaObject::invokeMethod(this, "renewWaiting", Qt::QueuedConnection);
    }
    m_waiting.insert(element);
}

void Timekeeper::renewWaiting()
{
    renew(std::exchange(m_waiting, {}).values());
}

void Timekeeper::onTimeout()
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (now < std::exchange(m_lastTimeout, now)) {
        m_transition = 0; // the clock was set back
    }
    const bool isTransition = std::exchange(m_transition, later(m_transition, now)) <= now;
    m_next = DatedText::never;
    if (isTransition) {
        makeAllDue();
    }
    renew(m_schedule.take(now, blockSize)); // for others that are due, the timer expires at once
}

void Timekeeper::onSettingsChanged()
{
    const QLocale before = regionLocale();
    m_settings.applyUserRegionLocale();
    m_relative.clear();
    m_custom.clear();
    for (DateText* const element : m_schedule.elements()) {
        element->forgetSource();
    }
    renewAll();
    Q_EMIT settingsChanged();
    if (regionLocale() != before) {
        Q_EMIT regionChanged();
    }
}

// The time zone may be another one, too: a system that wakes up may have travelled.
void Timekeeper::renewAll()
{
    for (DateText* const element : m_schedule.elements()) {
        element->forgetReading();
    }
    m_transition = 0;
    onTimeout();
}

void Timekeeper::makeAllDue()
{
    for (DateText* const element : m_schedule.elements()) {
        if (element->isActive()) {
            m_schedule.set(element, 0);
        }
    }
}

void Timekeeper::renew(const QList<DateText*>& elements)
{
    const QDateTime now = QDateTime::currentDateTime();
    if (m_transition == 0) {
        m_transition = later(0, now.toMSecsSinceEpoch());
    }
    // Computed before any signal is emitted: listeners may change or delete elements.
    const QList<MadeText> made = makeTexts(elements, now);
    for (const auto& [element, revision, text] : made) {
        if (element && element->revision() == revision) {
            element->receive(text);
        }
        if (element) {
            m_schedule.set(element, element->dueTime());
        }
    }
    startTimer();
}

void Timekeeper::startTimer()
{
    const qint64 first = m_schedule.first();
    if (first == DatedText::never) {
        return;
    }
    const qint64 next = (std::min(first, m_transition) + frame - 1) / frame * frame;
    if (next >= m_next) {
        return;
    }
    m_next = next;
    const qint64 wait = m_next - QDateTime::currentMSecsSinceEpoch();
    m_timer.start(
        static_cast<int>(std::clamp<qint64>(wait, 0, m_clock.isWatched() ? longestWait : longestWaitUnwatched)));
}

} // namespace zel::utility::i18n::qml
