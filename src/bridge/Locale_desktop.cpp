// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// The region locale of the Linux host.

#include "bridge/Locale.h"

#include <zel/host/Settings.h>

namespace zel::utility::i18n {

QLocale Locale::region()
{
    return zel::host::regionNow();
}

} // namespace zel::utility::i18n
