// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_SETTINGS_HOSTREPORTER_H
#define ZEL_UTILITY_I18N_SETTINGS_HOSTREPORTER_H

#include "bridge/Diagnostic.h"

namespace zel::utility::i18n {

/** Writes a message about the Linux host as one of the library. */
inline void reportOfHost(QtMsgType type, const QString& text)
{
    Diagnostic::write(type, text.toUtf8().constData());
}

} // namespace zel::utility::i18n

#endif
