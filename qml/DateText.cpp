// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "DateText.h"

#include "Timekeeper.h"
#include "Visibility.h"
#include <utility>

namespace zel::utility::i18n::qml {

DateText::DateText(QObject* parent) : QObject(parent) {}

DateText::~DateText()
{
    if (m_timekeeper) {
        m_timekeeper->remove(this);
    }
}

void DateText::setMoment(const QDateTime& moment)
{
    if (moment == m_moment) {
        return;
    }
    m_moment = moment.toUTC();
    m_sourceMoment = {};
    Q_EMIT momentChanged();
    renew();
}

QString DateText::text()
{
    if (std::exchange(m_isOutdated, false)) {
        m_isStale = true;
        QMetaObject::invokeMethod(this, "textChanged", Qt::QueuedConnection); // for the other readers
    }
    if (m_isStale && m_isComplete && m_timekeeper) {
        m_timekeeper->renewLater(this);
        m_timekeeper->renewWaiting();
    }
    return m_text;
}

void DateText::setActive(bool active)
{
    m_requestedActive = active;
    applyActive(active);
}

void DateText::resetActive()
{
    m_requestedActive.reset();
    onVisibilityChanged();
}

// Bindings are evaluated before the element is complete.
void DateText::classBegin()
{
    m_timekeeper = Timekeeper::of(this);
}

void DateText::componentComplete()
{
    if (m_timekeeper == nullptr) {
        return;
    }
    m_isComplete = true;
    m_timekeeper->add(this);
    onVisibilityChanged();
    renewWithOtherSource();
}

TextSource& DateText::source()
{
    if (!m_source) {
        m_source = createSource();
    }
    return *m_source;
}

QDateTime DateText::sourceMoment()
{
    if (!m_sourceMoment.isValid()) {
        m_sourceMoment = prepared(moment());
    }
    return m_sourceMoment;
}

// A change of settings may be one of the time zone.
void DateText::forgetSource()
{
    m_source.reset();
    forgetReading();
}

void DateText::forgetReading()
{
    ++m_revision;
    m_isOutdated = !m_isStale;
    m_sourceMoment = {};
}

void DateText::receive(const DatedText& text)
{
    ++m_revision;
    m_isOutdated = false;
    const bool isOtherText = std::exchange(m_text, text.text) != text.text;
    const bool isOtherTime = std::exchange(m_validUntil, text.validUntil) != text.validUntil;
    if (std::exchange(m_isStale, false)) {
        return;
    }
    const QPointer<DateText> alive(this);
    if (isOtherTime) {
        onValidityChanged();
    }
    if (isOtherText && alive) {
        Q_EMIT textChanged();
    }
}

Timekeeper* DateText::timekeeper() const
{
    return m_timekeeper;
}

void DateText::renew()
{
    ++m_revision;
    if (m_isComplete && m_timekeeper) {
        m_isStale = true;
        m_isOutdated = false;
        if (m_isActive) {
            m_timekeeper->renewLater(this);
        }
        onValidityChanged();
        Q_EMIT textChanged();
    }
}

void DateText::renewWithOtherSource()
{
    forgetSource();
    renew();
}

// The item is looked for on first use: before, the element may not have its parent yet.
void DateText::onVisibilityChanged()
{
    if (m_requestedActive || !m_isComplete) {
        return;
    }
    if (m_visibility == nullptr) {
        m_visibility = new Visibility(this);
        if (!connect(m_visibility, SIGNAL(changed()), this, SLOT(onVisibilityChanged()))) {
            return;
        }
    }
    applyActive(m_visibility->isShown());
}

// Texts that expired meanwhile are renewed together.
void DateText::applyActive(bool active)
{
    if (active == m_isActive) {
        return;
    }
    m_isActive = active;
    if (m_isComplete && m_timekeeper) {
        if (active) {
            m_timekeeper->renewLater(this);
        } else {
            m_timekeeper->suspend(this);
        }
    }
    Q_EMIT activeChanged();
}

} // namespace zel::utility::i18n::qml
