// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "patterns/FormattingPrivate.h"

#include <zel/icu/QtField.h>

namespace zel::utility::i18n {

QString getQtDateTimePatternFromICU(const QString& icuPattern)
{
    return icudata::QtField::translate(icuPattern);
}

} // namespace zel::utility::i18n
