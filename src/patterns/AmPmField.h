// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_PATTERNS_AMPMFIELD_H
#define ZEL_UTILITY_I18N_PATTERNS_AMPMFIELD_H

#include <QtCore/QLocale>
#include <QtCore/QString>

namespace zel::utility::i18n {

/**
 * Adds and removes the AM/PM field of a time pattern in Qt syntax, for the clock of the device. Skips quoted text.
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

    /** Changes a 24-hour pattern to 12 hours, with the field where the language writes it. */
    static void add(QLocale::Language language, QString& pattern);

    /** Changes a 12-hour pattern to 24 hours; a field at an unknown position is removed with a message. */
    static void remove(QLocale::Language language, QString& pattern);

    /** Uses the lower-case field ("ap") where the locale does not write AM and PM in capitals. */
    static void fixCase(const QLocale& locale, QString& pattern);
};

} // namespace zel::utility::i18n

#endif
