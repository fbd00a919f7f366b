// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "bridge/String.h"

#include <QtCore/QLatin1Char>

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
    // Doubled apostrophes count twice and so do not change whether text is quoted.
    bool quoted = false;
    int counted = 0;
    for (;;) {
        const auto position = static_cast<int>(format.indexOf(character, from, cs));
        if (position == -1) {
            return -1;
        }
        for (; counted < position; ++counted) {
            quoted ^= format.at(counted) == QLatin1Char('\'');
        }
        if (!quoted) {
            return position;
        }
        from = position + 1;
    }
}

} // namespace zel::utility::i18n
