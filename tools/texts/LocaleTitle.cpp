// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "texts/LocaleTitle.h"

#include <string>
#include <unicode/locid.h>
#include <unicode/unistr.h>

namespace zel::tool {

QString localeTitle(const QString& name, const QString& language)
{
    if (name == QLatin1String("C")) {
        return QStringLiteral("no locale, as in English");
    }
    icu::UnicodeString title;
    icu::Locale::createCanonical(name.toLatin1().constData())
        .getDisplayName(icu::Locale(language.toLatin1().constData()), title);
    std::string text;
    return QString::fromStdString(title.toUTF8String(text));
}

} // namespace zel::tool
