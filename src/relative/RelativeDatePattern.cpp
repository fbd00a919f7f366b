// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "relative/RelativeDatePattern.h"

#include "bridge/PatternText.h"
#include "patterns/ClockPattern.h"
#include "patterns/DatePattern.h"
#include "relative/RelativeDate.h"
#include "resources/ResourceFormatter.h"
#include <algorithm>
#include <QtCore/QLatin1Char>
#include <QtCore/QLatin1String>

namespace zel::utility::i18n {

namespace {

bool consistsOf(const QString& text, const QString& letters)
{
    return std::all_of(text.cbegin(), text.cend(), [&letters](QChar c) { return letters.contains(c); });
}

// Removes the punctuation of a weekday, which the name of a day ("yesterday") does not have: a full stop or brackets.
// Where there were brackets, the name comes first, even if the weekday came last.
QString withoutWeekdayPunctuation(const QString& pattern, const QString& letters)
{
    const PatternText fields(pattern);
    const auto isWeekday = [&](int i) { return fields.isField(i) && letters.contains(pattern.at(i)); };
    int start = 0;
    while (start < pattern.size() && !isWeekday(start)) {
        ++start;
    }
    int end = start;
    while (end < pattern.size() && isWeekday(end)) {
        ++end;
    }
    if (end == start || end == pattern.size()) {
        return pattern;
    }
    const bool bracketed = start > 0 && pattern.at(start - 1).category() == QChar::Punctuation_Open &&
                           pattern.at(end).category() == QChar::Punctuation_Close;
    if (bracketed) {
        const QString others = pattern.left(start - 1).trimmed() + QLatin1Char(' ') + pattern.mid(end + 1).trimmed();
        return (pattern.mid(start, end - start) + QLatin1Char(' ') + others.trimmed()).trimmed();
    }
    return pattern.at(end) == QLatin1Char('.') ? pattern.left(end) + pattern.mid(end + 1) : pattern;
}

} // namespace

RelativeDatePattern::RelativeDatePattern(const QLocale& locale, ClockFormat::Type clockFormat,
                                         const QDateTime& anchorTime, const QString& skeleton,
                                         const QList<RelativeDateElement::Type>& elements, QObject* parent)
    : QObject(parent),
      m_locale(locale),
      m_clockFormat(clockFormat),
      m_anchorTime(anchorTime),
      m_elements(elements),
      m_skeleton(skeleton)
{
    initPattern();
}

void RelativeDatePattern::setClockFormat(ClockFormat::Type clockFormat)
{
    m_clockFormat = clockFormat;
    initPattern();
}

void RelativeDatePattern::setLocale(const QLocale& locale)
{
    m_locale = locale;
    initPattern();
}

QString RelativeDatePattern::format(const QDateTime& dateTime) const
{
    QString text = m_pattern;
    for (const RelativeDateElement::Type element : m_elements) {
        text = withPhraseFor(text, element, count(element, dateTime));
    }
    return DatePattern::formatFromPattern(text, dateTime, m_locale);
}

QString RelativeDatePattern::format(const QDateTime& dateTime, int elementCount) const
{
    return DatePattern::formatFromPattern(patternFor(elementCount), dateTime, m_locale);
}

QString RelativeDatePattern::patternFor(int elementCount) const
{
    QString text = m_pattern;
    for (const RelativeDateElement::Type element : m_elements) {
        text = withPhraseFor(text, element, elementCount);
    }
    return text;
}

bool RelativeDatePattern::isPhraseAlone() const
{
    return m_elements.size() == 1 && isAlone(m_elements.constFirst());
}

bool RelativeDatePattern::isAlone(RelativeDateElement::Type element) const
{
    const QString fields = PatternText(m_pattern).fields();
    return !fields.isEmpty() && consistsOf(fields, RelativeDate::characters(element));
}

void RelativeDatePattern::initPattern()
{
    const unsigned int update = ++m_updates;
    const QString pattern = DatePattern::patternFromSkeleton(ClockPattern::apply(m_skeleton, m_clockFormat), m_locale);
    // An update that a message handler started during this one is newer.
    if (update == m_updates) {
        m_pattern = pattern;
    }
}

int RelativeDatePattern::count(RelativeDateElement::Type element, const QDateTime& dateTime) const
{
    return RelativeDate::offsetIsAbsolute(element) ? RelativeDate::offset(m_anchorTime, dateTime, element)
                                                   : RelativeDate::difference(m_anchorTime, dateTime, element, true);
}

QString RelativeDatePattern::withPhraseFor(const QString& text, RelativeDateElement::Type element,
                                           int elementCount) const
{
    const ResourceFormatter formatter(m_locale, element, nullptr);
    return formatter.isValid() ? withPhrase(text, element, formatter.format(elementCount)) : text;
}

QString RelativeDatePattern::withPhrase(const QString& text, RelativeDateElement::Type element,
                                        const QString& phrase) const
{
    if (phrase.isEmpty()) {
        return RelativeDate::apply(text, element, phrase);
    }
    QString literal = phrase;
    literal.replace(QLatin1Char('\''), QLatin1String("''"));
    // Literal text around a single field belongs to its number ("15 Uhr"), not to the phrase.
    if (isAlone(element)) {
        return RelativeDate::apply(PatternText(m_pattern).fields(), element, literal);
    }
    const bool isNamedDay = element == RelativeDateElement::NamedDays;
    return RelativeDate::apply(isNamedDay ? withoutWeekdayPunctuation(text, RelativeDate::characters(element)) : text,
                               element, literal);
}

} // namespace zel::utility::i18n
