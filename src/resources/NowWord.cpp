// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "resources/NowWord.h"

#include "bridge/Locale.h"
#include "bridge/String.h"
#include "resources/ResourceAccessor.h"
#include <memory>
#include <unicode/errorcode.h>

namespace zel::utility::i18n {

QString NowWord::of(const QLocale& locale)
{
    const QStringList keys{QStringLiteral("calendar"), QStringLiteral("gregorian"), QStringLiteral("fields"),
                           QStringLiteral("second"), QStringLiteral("relative")};
    for (icu::Locale current = Locale::toICU(locale); !current.isBogus(); current = Locale::fallback(current)) {
        const std::unique_ptr<icu::ResourceBundle> table(ResourceAccessor::initResource(current, keys));
        if (table) {
            icu::ErrorCode status;
            const icu::UnicodeString word = table->getStringEx("0", status);
            return status.isSuccess() ? String::toQt(word) : QString();
        }
    }
    return {};
}

} // namespace zel::utility::i18n
