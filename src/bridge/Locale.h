// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_BRIDGE_LOCALE_H
#define ZEL_UTILITY_I18N_BRIDGE_LOCALE_H

#include <QtCore/QLocale>
#include <unicode/locid.h>

namespace zel::utility::i18n {

/** Converts locales from Qt to ICU; the user's region locale. All functions are reentrant. */
class Locale
{
public:
    Locale() = delete;

    /** The ICU locale with the Gregorian calendar, whatever calendar the locale prefers; see zel/icu/QtLocale.h. */
    static icu::Locale toICU(const QLocale& locale);

    /**
     * The next, more general locale: without keywords, then the language alone, then the root, then the bogus locale.
     * Do not call with the bogus locale.
     */
    static icu::Locale fallback(const icu::Locale& locale);

    /** The user's region locale as it is now. */
    static QLocale region();

    /** The user's region locale for ICU. */
    static icu::Locale regionForICU();
};

} // namespace zel::utility::i18n

#endif
