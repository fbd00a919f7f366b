// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_LOCALETITLE_H
#define ZEL_TOOL_LOCALETITLE_H

#include <QtCore/QString>

namespace zel::tool {

/** The name of a locale in the language of another one: "German (Germany)" in English. */
QString localeTitle(const QString& name, const QString& language = QStringLiteral("en"));

} // namespace zel::tool

#endif
