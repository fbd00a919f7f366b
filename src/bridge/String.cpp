// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "bridge/String.h"

#include "bridge/PatternText.h"

namespace zel::utility::i18n {

QString String::toQt(const icu::UnicodeString& text)
{
    // Not QString::fromUtf16(), which removes a byte order mark.
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

icu::UnicodeString String::toICU(const QString& text)
{
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<int32_t>(text.size())};
}

int String::indexOfInFormat(const QString& format, const QChar& character, int from, Qt::CaseSensitivity cs)
{
    return PatternText(format).indexOf(character, from, cs);
}

} // namespace zel::utility::i18n
