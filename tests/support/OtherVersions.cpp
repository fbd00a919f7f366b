// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Preloaded, so that a program sees other versions of ICU and Qt than it was built with.

#include <algorithm>
#include <iterator>
#include <QtCore/QtGlobal>
#include <unicode/uversion.h>

extern "C" Q_DECL_EXPORT const char* qVersion() noexcept
{
    return "99.1.0";
}

U_CAPI void U_EXPORT2 u_getVersion(UVersionInfo version)
{
    std::fill_n(version, U_MAX_VERSION_LENGTH, uint8_t{98});
}
