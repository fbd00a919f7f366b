#ifndef ZEL_UTILITY_I18N_RELATIVE_RELATIVEDATE_H
#define ZEL_UTILITY_I18N_RELATIVE_RELATIVEDATE_H

#include "relative/RelativeDateElement.h"
#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace zel::utility::i18n {

/**
 * What is to know about relative-date elements, and how far two moments lie apart in them.
 *
 * Every function reports an invalid element and answers an empty value. All are reentrant.
 */
class RelativeDate
{
public:
    RelativeDate() = delete;

    /** The English name of an element, for messages. */
    static QString elementName(RelativeDateElement::Type type);

    /** True where an element counts calendar positions (offset()), false where it counts time gone by (difference()).
     */
    static bool offsetIsAbsolute(RelativeDateElement::Type type);

    /** The pattern letters that show an element, in the order in which apply() looks for them. */
    static QString characters(RelativeDateElement::Type type);

    /**
     * A pattern with a phrase, quoted, in the place of an element's letters.
     *
     * @param format an ICU date/time pattern
     * @param elementString the phrase, with its apostrophes doubled
     * @return the format as it was where it has no such letter; without the letters where the phrase is empty
     *
     * @code
     * RelativeDate::apply("EEEE, d MMMM", RelativeDateElement::NamedDays, "Yesterday"); // "'Yesterday', d MMMM"
     * @endcode
     */
    static QString apply(const QString& format, RelativeDateElement::Type type, const QString& elementString);

    /**
     * The difference of one calendar field: yesterday is a day offset of -1 even an hour ago.
     *
     * Both moments count by the date and time that they show. The result is positive when `dateTime` lies after
     * `anchorTime`; 0, with messages, on failure. Minutes are within the hour, hours within the day, days within the
     * year.
     */
    static int offset(const QDateTime& anchorTime, const QDateTime& dateTime, RelativeDateElement::Type type);

    /**
     * The whole units that lie between two moments, or, with `remainderOnly`, those beyond the whole units of the next
     * larger field: 2 hours 25 minutes later is 145 minutes, or 25. Signs and failures are those of offset().
     */
    static int difference(const QDateTime& anchorTime, const QDateTime& dateTime, RelativeDateElement::Type type,
                          bool remainderOnly);

    /** True where the phrases of an element are chosen by plural category, false where they are fixed ones. */
    static bool resourceIsPlural(RelativeDateElement::Type type);

    /** Where the phrases of an element lie in the locale data, outermost key first. */
    static QStringList resourcePath(RelativeDateElement::Type type, bool past);
};

} // namespace zel::utility::i18n

#endif
