// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "Formats.h"

#include "Timekeeper.h"
#include <QtQml/QJSEngine>
#include <QtQml/QJSValue>
#include <QtQml/QQmlInfo>
#include <zel/utility/i18n/Formatting.h>

namespace zel::utility::i18n::qml {

void Formats::classBegin()
{
    const Timekeeper* const timekeeper = Timekeeper::of(this);
    if (timekeeper != nullptr && !connect(timekeeper, SIGNAL(settingsChanged()), this, SIGNAL(changed()))) {
        qmlWarning(this) << "cannot follow the settings";
    }
}

QLocale Formats::locale() const
{
    const Timekeeper* const timekeeper = m_locale ? nullptr : Timekeeper::of(this);
    return timekeeper != nullptr ? timekeeper->regionLocale() : m_locale.value_or(QLocale());
}

void Formats::setLocale(const QLocale& locale)
{
    if (m_locale != locale) {
        m_locale = locale;
        Q_EMIT changed();
    }
}

void Formats::resetLocale()
{
    if (m_locale) {
        m_locale.reset();
        Q_EMIT changed();
    }
}

QString Formats::shortDate() const
{
    return dateFormat(locale(), DateFormat::Short);
}

QString Formats::mediumDate() const
{
    return dateFormat(locale(), DateFormat::Medium);
}

QString Formats::longDate() const
{
    return dateFormat(locale(), DateFormat::Long);
}

QString Formats::fullDate() const
{
    return dateFormat(locale(), DateFormat::Full);
}

QString Formats::shortTime() const
{
    return timeFormat(locale(), DateFormat::Short);
}

QString Formats::mediumTime() const
{
    return timeFormat(locale(), DateFormat::Medium);
}

QString Formats::longTime() const
{
    return timeFormat(locale(), DateFormat::Long);
}

QString Formats::fullTime() const
{
    return timeFormat(locale(), DateFormat::Full);
}

QString Formats::shortDateTime() const
{
    return dateTimeFormat(locale(), DateFormat::Short);
}

QString Formats::mediumDateTime() const
{
    return dateTimeFormat(locale(), DateFormat::Medium);
}

QString Formats::longDateTime() const
{
    return dateTimeFormat(locale(), DateFormat::Long);
}

QString Formats::fullDateTime() const
{
    return dateTimeFormat(locale(), DateFormat::Full);
}

QString Formats::percentage(double value, int maximumFractionDigits, int minimumFractionDigits)
{
    // A binding depends on the properties that are read through the engine while it is evaluated.
    if (QJSEngine* const engine = qjsEngine(this)) {
        engine->toScriptValue(this).property(QStringLiteral("locale"));
    }
    return toPercentageString(locale(), value, maximumFractionDigits, minimumFractionDigits);
}

} // namespace zel::utility::i18n::qml
