// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// The region locale of the device platform.

#include "bridge/Locale.h"

#include <zel/system/LocaleHandler.h>

namespace zel::utility::i18n {

QLocale Locale::region()
{
    const zel::system::LocaleHandler handler(zel::system::LocaleType::Region, nullptr);
    return handler.locale();
}

} // namespace zel::utility::i18n
