#include "relative/RelativeDatePattern.h"

#include "patterns/ClockPattern.h"
#include "patterns/DatePattern.h"
#include "relative/RelativeDate.h"
#include "resources/ResourceFormatter.h"
#include <algorithm>
#include <QtCore/QLatin1Char>
#include <QtCore/QLatin1String>

namespace zel::utility::i18n {

namespace {

/** The field letters of a pattern, without its literal text. */
QString fieldLetters(const QString& pattern)
{
    QString letters;
    bool quoted = false;
    for (const QChar c : pattern) {
        quoted ^= c == QLatin1Char('\'');
        if (!quoted && c.unicode() < 0x80 && c.isLetter()) {
            letters += c;
        }
    }
    return letters;
}

bool consistsOf(const QString& text, const QString& letters)
{
    return std::all_of(text.cbegin(), text.cend(), [&letters](QChar c) { return letters.contains(c); });
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
        const int elementCount = count(element, dateTime);
        const ResourceFormatter formatter(m_locale, element, nullptr);
        if (formatter.isValid()) {
            text = withPhrase(text, element, formatter.format(elementCount));
        }
    }
    return DatePattern::formatFromPattern(text, dateTime, m_locale);
}

void RelativeDatePattern::initPattern()
{
    m_pattern = DatePattern::patternFromSkeleton(ClockPattern::apply(m_skeleton, m_clockFormat), m_locale);
}

int RelativeDatePattern::count(RelativeDateElement::Type element, const QDateTime& dateTime) const
{
    return RelativeDate::offsetIsAbsolute(element) ? RelativeDate::offset(m_anchorTime, dateTime, element)
                                                   : RelativeDate::difference(m_anchorTime, dateTime, element, true);
}

QString RelativeDatePattern::withPhrase(const QString& text, RelativeDateElement::Type element,
                                        const QString& phrase) const
{
    QString literal = phrase;
    literal.replace(QLatin1Char('\''), QLatin1String("''"));
    // Literal text around a single field belongs to its number ("15 Uhr"), not to a phrase.
    const QString fields = fieldLetters(m_pattern);
    const bool alone = !phrase.isEmpty() && !fields.isEmpty() && consistsOf(fields, RelativeDate::characters(element));
    return RelativeDate::apply(alone ? fields : text, element, literal);
}

} // namespace zel::utility::i18n
