// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "patterns/FormattingPrivate.h"

#include <algorithm>
#include <QtCore/QLatin1String>
#include <zel/icu/QtField.h>

namespace zel::utility::i18n {

QString getQtDateTimePatternFromICU(const QString& icuPattern)
{
    constexpr QLatin1Char apostrophe('\'');
    const QChar* const end = icuPattern.cend();
    QString result;
    for (const QChar* c = icuPattern.cbegin(); c != end;) {
        if (*c == apostrophe) {
            const QChar* const text = c + 1;
            const QChar* const close = std::find(text, end, apostrophe);
            result.append(apostrophe).append(text, static_cast<int>(close - text)).append(apostrophe);
            c = close == end ? end : close + 1;
            continue;
        }
        const icudata::QtField* const field = icudata::QtField::find(c->unicode());
        if (field == nullptr) {
            result.append(*c++);
            continue;
        }
        const QChar* const next = std::find_if(c, end, [c](QChar other) { return other != *c; });
        const char* const text = field->text(next - c);
        if (text == nullptr) {
            return {};
        }
        result.append(QLatin1String(text));
        c = next;
    }
    return result;
}

} // namespace zel::utility::i18n
