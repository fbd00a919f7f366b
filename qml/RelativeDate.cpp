// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "RelativeDate.h"

#include "Timekeeper.h"
#include <QtCore/QMetaEnum>
#include <QtQml/QQmlInfo>

namespace zel::utility::i18n::qml {

namespace {

// Not QMetaEnum::valueToKey(), whose parameter is signed or not, depending on the version of Qt.
bool contains(const QMetaEnum& values, int value)
{
    int i = 0;
    while (i < values.keyCount() && values.value(i) != value) {
        ++i;
    }
    return i < values.keyCount();
}

} // namespace

template <typename Value>
void RelativeDate::choose(const char* property, Value& current, Value value, void (RelativeDate::*changed)())
{
    const QMetaEnum values = QMetaEnum::fromType<Value>();
    if (!contains(values, value)) {
        qmlWarning(this) << property << ": there is no " << values.enumName() << " " << static_cast<int>(value);
        return;
    }
    if (value != current) {
        current = value;
        Q_EMIT(this->*changed)();
        renewWithOtherSource();
    }
}

void RelativeDate::setTable(Table table)
{
    choose("table", m_table, table, &RelativeDate::tableChanged);
}

void RelativeDate::setClockFormat(Clock clockFormat)
{
    choose("clockFormat", m_clockFormat, clockFormat, &RelativeDate::clockFormatChanged);
}

void RelativeDate::setWording(Wording wording)
{
    choose("wording", m_wording, wording, &RelativeDate::wordingChanged);
}

QLocale RelativeDate::locale() const
{
    return m_locale || timekeeper() == nullptr ? m_locale.value_or(QLocale()) : timekeeper()->regionLocale();
}

void RelativeDate::setLocale(const QLocale& locale)
{
    if (m_locale != locale) {
        m_locale = locale;
        Q_EMIT localeChanged();
        renewWithOtherSource();
    }
}

void RelativeDate::resetLocale()
{
    if (m_locale) {
        m_locale.reset();
        Q_EMIT localeChanged();
        renewWithOtherSource();
    }
}

void RelativeDate::setAnchor(const QDateTime& anchor)
{
    if (anchor != m_anchor) {
        m_anchor = anchor.toUTC();
        Q_EMIT anchorChanged();
        renew();
    }
}

QDateTime RelativeDate::validUntil()
{
    if (timekeeper() == nullptr || !hasMoment()) {
        return {};
    }
    auto& dates = static_cast<RelativeDateSource&>(source());
    return dates.validUntil(moment(), m_anchor.isValid() ? anchor() : QDateTime::currentDateTime());
}

QDateTime RelativeDate::prepared(const QDateTime& moment) const
{
    return RelativeDateSource::reading(moment);
}

void RelativeDate::classBegin()
{
    DateText::classBegin();
    if (timekeeper() != nullptr && !connect(timekeeper(), SIGNAL(regionChanged()), this, SLOT(onRegionChanged()))) {
        qmlWarning(this) << "cannot follow the region";
    }
}

std::shared_ptr<TextSource> RelativeDate::createSource()
{
    return timekeeper()->relativeDates({static_cast<RelativeDateFormat::Type>(m_table), locale(),
                                        static_cast<ClockFormat::Type>(m_clockFormat),
                                        static_cast<RelativeDateWording::Type>(m_wording)});
}

void RelativeDate::onRegionChanged()
{
    if (!m_locale) {
        Q_EMIT localeChanged();
    }
}

} // namespace zel::utility::i18n::qml
