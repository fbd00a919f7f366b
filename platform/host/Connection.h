// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_HOST_CONNECTION_H
#define ZEL_HOST_CONNECTION_H

#include <zel/host/Setting.h>

namespace zel::host {

/** Reports that a function failed to connect to a signal. */
inline void checkConnection(Reporter reporter, bool isConnected, const char* function, const char* signal)
{
    if (!isConnected) {
        reporter(
            QtCriticalMsg,
            QStringLiteral("%1 failed to connect to %2 signal").arg(QLatin1String(function), QLatin1String(signal)));
    }
}

} // namespace zel::host

#endif
