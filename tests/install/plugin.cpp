// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include <zel/utility/i18n/RelativeDateFormatter.h>

// The meta-object is in the library; callers may keep it.
extern "C" Q_DECL_EXPORT const QMetaObject* metaObject()
{
    return &zel::utility::i18n::RelativeDateFormatter::staticMetaObject;
}
