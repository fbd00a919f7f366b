// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_RELATIVE_RELATIVEDATE_H
#define ZEL_UTILITY_I18N_RELATIVE_RELATIVEDATE_H

#include "relative/RelativeDateElement.h"
#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace zel::utility::i18n {

/**
 * Properties of relative-date elements, and distances between moments in them.
 *
 * Every function reports an invalid element and returns an empty value. All are reentrant.
 */
class RelativeDate
{
public:
    RelativeDate() = delete;

    /** The English name of an element, for messages. */
    static QString elementName(RelativeDateElement::Type type);

    /** True if an element counts calendar positions, by offset(); false for elapsed time, by difference(). */
    static bool offsetIsAbsolute(RelativeDateElement::Type type);

    /** The pattern letters that show an element, in the order in which apply() looks for them. */
    static QString characters(RelativeDateElement::Type type);

    /**
     * Replaces an element's letters in a pattern by a quoted phrase.
     *
     * @param format an ICU date/time pattern
     * @param elementString the phrase, with its apostrophes doubled
     * @return the new pattern; unchanged if it has no such letter; without the letters if the phrase is empty
     *
     * @code
     * RelativeDate::apply("EEEE, d MMMM", RelativeDateElement::NamedDays, "Yesterday"); // "'Yesterday', d MMMM"
     * @endcode
     */
    static QString apply(const QString& format, RelativeDateElement::Type type, const QString& elementString);

    /**
     * The difference of one calendar field: yesterday is a day offset of -1 even an hour ago.
     *
     * Both moments count by the date and time that they show. The result is positive if `dateTime` is after
     * `anchorTime`; 0, with messages, on failure. Minutes are within the hour, hours within the day, days within the
     * year.
     */
    static int offset(const QDateTime& anchorTime, const QDateTime& dateTime, RelativeDateElement::Type type);

    /**
     * The whole units between two moments; with `remainderOnly`, without the whole units of the next larger field:
     * 2 hours 25 minutes later is 145 minutes, or 25. Sign and failure as for offset().
     */
    static int difference(const QDateTime& anchorTime, const QDateTime& dateTime, RelativeDateElement::Type type,
                          bool remainderOnly);

    /** True if the phrases of an element depend on the plural category, false if they are fixed. */
    static bool resourceIsPlural(RelativeDateElement::Type type);

    /** The keys of an element's phrases in the locale data, outermost first. */
    static QStringList resourcePath(RelativeDateElement::Type type, bool past);
};

} // namespace zel::utility::i18n

#endif
