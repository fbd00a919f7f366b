#ifndef ZEL_UTILITY_I18N_BRIDGE_LOCALE_H
#define ZEL_UTILITY_I18N_BRIDGE_LOCALE_H

#include <QtCore/QLocale>
#include <unicode/locid.h>

namespace zel::utility::i18n {

/** Locales on their way from Qt to ICU, and the region locale of the user. All functions are reentrant. */
class Locale
{
public:
    Locale() = delete;

    /** The ICU locale of the BCP 47 name, with the territory where that name leaves it out. */
    static icu::Locale named(const QLocale& locale);

    /** The ICU locale with the Gregorian calendar, whatever calendar the locale prefers. */
    static icu::Locale toICU(const QLocale& locale);

    /**
     * The next, more general locale: without its keywords, then the bare language, then the root, and the bogus locale
     * after that. It must not be called with the bogus locale.
     */
    static icu::Locale fallback(const icu::Locale& locale);

    /** The user's region locale, as the device reports it now. */
    static QLocale region();

    /** The user's region locale for ICU. */
    static icu::Locale regionForICU();
};

} // namespace zel::utility::i18n

#endif
