#ifndef ZEL_UTILITY_I18N_PATTERNS_AMPMFIELD_H
#define ZEL_UTILITY_I18N_PATTERNS_AMPMFIELD_H

#include <QtCore/QLocale>
#include <QtCore/QString>

namespace zel::utility::i18n {

/**
 * The AM/PM field of a time pattern in Qt syntax: it comes and goes with the clock of the device. Literal text between
 * apostrophes is passed over.
 *
 * @code
 * QString pattern = QStringLiteral("hh:mm");
 * AmPmField::add(QLocale::German, pattern); // "h:mm AP"
 * @endcode
 */
class AmPmField
{
public:
    AmPmField() = delete;

    static bool isIn(const QString& pattern);

    /** Makes a 12-hour pattern of a 24-hour one, with the field where the language writes it. */
    static void add(QLocale::Language language, QString& pattern);

    /** Makes a 24-hour pattern of a 12-hour one; a field of which the place is unknown goes with a message. */
    static void remove(QLocale::Language language, QString& pattern);

    /** Asks Qt for lower-case text ("ap") where the locale does not write its own in capitals. */
    static void fixCase(const QLocale& locale, QString& pattern);
};

} // namespace zel::utility::i18n

#endif
