// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_ICU_QTLOCALE_H
#define ZEL_ICU_QTLOCALE_H

#include <QtCore/QByteArray>
#include <QtCore/QLocale>
#include <unicode/errorcode.h>
#include <unicode/locid.h>
#include <zel/icu/DataDirectory.h>

/** A QLocale as a locale of ICU. Header-only: the library, the Linux host and the command line share it. */
namespace zel::icudata::QtLocale {

/** Returns the ICU locale of the BCP 47 name, with the territory where that name omits it. */
inline icu::Locale toICU(const QLocale& locale)
{
    if (locale.language() == QLocale::C) {
        return icu::Locale::getEnglish(); // Qt 6.9 and later add the variant POSIX
    }
    // Qt omits a likely territory ("ar" for Egypt), but "ar" means Arabic with Latin digits to ICU 76 and later.
    QByteArray name = locale.bcp47Name().toUtf8();
    const QByteArray qtName = locale.name().toUtf8();
    const QByteArray territory = qtName.mid(qtName.lastIndexOf('_') + 1);
    if (territory != qtName && !name.endsWith('-' + territory)) {
        name += '-' + territory;
    }
    return icu::Locale::createFromName(name.constData());
}

/**
 * Returns the ICU locale with the Gregorian calendar, whatever calendar the locale prefers; without it on failure.
 * Checks ICU's data directory first, as callers ask ICU for the locale's data next.
 */
inline icu::Locale toGregorianICU(const QLocale& locale, icu::ErrorCode& status)
{
    checkDataDirectory();
    icu::Locale icuLocale = toICU(locale);
    icuLocale.setKeywordValue("calendar", "gregorian", status);
    return icuLocale;
}

} // namespace zel::icudata::QtLocale

#endif
