// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "texts/KnownLocale.h"

#include <string>
#include <unicode/errorcode.h>
#include <unicode/locid.h>
#include <unicode/resbund.h>
#include <unicode/uenum.h>
#include <unicode/uloc.h>
#include <unicode/unistr.h>
#include <vector>
#include <zel/icu/DataDirectory.h>
#include <zel/system/LocaleName.h>

namespace zel::tool {

namespace {

using Texts = std::vector<icu::UnicodeString>;

Texts tableAt(icu::ResourceBundle bundle, std::initializer_list<const char*> path)
{
    Texts texts;
    UErrorCode status = U_ZERO_ERROR;
    for (const char* const key : path) {
        bundle = bundle.get(key, status);
    }
    while (U_SUCCESS(status) && bundle.hasNext()) {
        texts.push_back(bundle.getNextString(status));
    }
    return texts;
}

std::vector<Texts> phraseTables(const char* locale)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::ResourceBundle bundle(zel::icudata::phrasePackage(), icu::Locale(locale), status);
    std::vector<Texts> tables = {tableAt(bundle, {"calendar", "gregorian", "fields", "day", "relative"})};
    for (const char* const unit :
         {"minute-past", "minute-future", "hour-past", "hour-future", "year-past", "year-future"}) {
        tables.push_back(tableAt(bundle, {"units", unit}));
    }
    return tables;
}

// The title of a locale in a language: "German (Germany)" in English.
QString titleIn(const QString& name, const QString& language)
{
    if (name == QLatin1String("C")) {
        return QStringLiteral("C locale (English)");
    }
    icu::UnicodeString title;
    icu::Locale::createCanonical(name.toLatin1().constData())
        .getDisplayName(icu::Locale(language.toLatin1().constData()), title);
    std::string text;
    return QString::fromStdString(title.toUTF8String(text));
}

} // namespace

QStringList KnownLocale::names()
{
    QStringList names;
    icu::ErrorCode status;
    // With aliases such as zh_TW, which is what an environment calls zh_Hant_TW.
    const icu::LocalUEnumerationPointer all(uloc_openAvailableByType(ULOC_AVAILABLE_WITH_LEGACY_ALIASES, status));
    while (const char* const name = uenum_next(all.getAlias(), nullptr, status)) {
        if (zel::system::LocaleName::find(QString::fromLatin1(name))) {
            names.append(QString::fromLatin1(name));
        }
    }
    names.sort();
    return names;
}

QString KnownLocale::englishTitle() const
{
    return titleIn(m_name, QStringLiteral("en"));
}

QString KnownLocale::nativeTitle() const
{
    return titleIn(m_name, m_name);
}

QString KnownLocale::script() const
{
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale locale = icu::Locale::createCanonical(m_name.toLatin1().constData());
    locale.addLikelySubtags(status);
    return QString::fromLatin1(locale.getScript());
}

QString KnownLocale::phrases() const
{
    static const std::vector<Texts> ofRoot = phraseTables("root");
    const std::vector<Texts> tables = phraseTables(m_name.toLatin1().constData());
    int own = 0;
    for (std::size_t i = 0; i < tables.size(); ++i) {
        own += tables[i] == ofRoot[i] ? 0 : 1;
    }
    if (own == 0) {
        return QStringLiteral("none");
    }
    // The names of days in root are English.
    const bool isEnglish = m_name == QLatin1String("en") || m_name.startsWith(QLatin1String("en_"));
    return QLatin1String(isEnglish || own == static_cast<int>(tables.size()) ? "own" : "some");
}

} // namespace zel::tool
