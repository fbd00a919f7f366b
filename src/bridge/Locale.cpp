// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "bridge/Locale.h"

#include "bridge/Diagnostic.h"
#include "bridge/IcuCall.h"
#include <unicode/errorcode.h>
#include <zel/icu/QtLocale.h>

namespace zel::utility::i18n {

icu::Locale Locale::toICU(const QLocale& locale)
{
    icu::ErrorCode status;
    icu::Locale icuLocale = icudata::QtLocale::toGregorianICU(locale, status);
    if (status.isFailure()) {
        IcuCall{"icu::Locale::setKeywordValue( const char *, const char *, UErrorCode & )", IcuCall::Spaced}.report(
            status, "static icu::Locale zel::utility::i18n::Locale::toICU(const QLocale&)",
            "could not set gregorian calendar on", icuLocale.getName(), "locale");
    }
    return icuLocale;
}

icu::Locale Locale::fallback(const icu::Locale& locale)
{
    static constexpr const char* signature =
        "static icu::Locale zel::utility::i18n::Locale::fallback(const icu::Locale&)";
    if (locale.isBogus()) {
        Diagnostic::write(QtCriticalMsg, signature, "called with bogus locale (crashing to avoid infinite recursion)");
        qFatal("%s", signature);
    }
    if (locale == icu::Locale::getRoot()) {
        icu::Locale end = icu::Locale::getRoot();
        end.setToBogus();
        return end;
    }
    icu::Locale base(locale.getBaseName());
    if (locale != base) {
        return base;
    }
    icu::Locale language(locale.getLanguage());
    if (locale != language) {
        return language;
    }
    return icu::Locale::getRoot();
}

icu::Locale Locale::regionForICU()
{
    return toICU(region());
}

} // namespace zel::utility::i18n
