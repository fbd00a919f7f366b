// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_RELATIVE_RELATIVEDATEPATTERN_H
#define ZEL_UTILITY_I18N_RELATIVE_RELATIVEDATEPATTERN_H

#include "relative/RelativeDateElement.h"
#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QLocale>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <zel/utility/i18n/ClockFormat.h>

namespace zel::utility::i18n {

/**
 * A skeleton in which phrases, counted from an anchor time, replace some fields.
 *
 * @code
 * const RelativeDatePattern pattern(QLocale("en_US"), ClockFormat::Use24hourClock, anchor, "Ejm",
 *                                   {RelativeDateElement::NamedDays}, nullptr);
 * pattern.format(anchor.addDays(-1)); // "yesterday 10:30"
 * @endcode
 */
class RelativeDatePattern : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RelativeDatePattern)

public:
    RelativeDatePattern(const QLocale& locale, ClockFormat::Type clockFormat, const QDateTime& anchorTime,
                        const QString& skeleton, const QList<RelativeDateElement::Type>& elements, QObject* parent);
    ~RelativeDatePattern() override = default;

    void setClockFormat(zel::utility::i18n::ClockFormat::Type clockFormat);
    void setLocale(const QLocale& locale);
    void setAnchorTime(const QDateTime& anchorTime) { m_anchorTime = anchorTime; }

    /** The text of a moment; a null string, with messages, on failure. */
    QString format(const QDateTime& dateTime) const;

    /** The same with a given count for every element. */
    QString format(const QDateTime& dateTime, int elementCount) const;

    /** The ICU pattern of texts with that count; an element without a phrase is removed, with messages. */
    QString patternFor(int elementCount) const;

    /** Whether the phrase of a single element is the whole text. */
    bool isPhraseAlone() const;

private:
    void initPattern();
    int count(RelativeDateElement::Type element, const QDateTime& dateTime) const;
    bool isAlone(RelativeDateElement::Type element) const;
    QString withPhraseFor(const QString& text, RelativeDateElement::Type element, int elementCount) const;
    QString withPhrase(const QString& text, RelativeDateElement::Type element, const QString& phrase) const;

    QLocale m_locale;
    ClockFormat::Type m_clockFormat;
    QDateTime m_anchorTime;
    QList<RelativeDateElement::Type> m_elements;
    QString m_skeleton;
    QString m_pattern;
    unsigned int m_updates = 0;
};

} // namespace zel::utility::i18n

#endif
