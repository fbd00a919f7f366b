// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "Command.h"

namespace zel::tool {

QList<QCommandLineOption> Command::allOptions() const
{
    QList<QCommandLineOption> all = options();
    all.append({QStringLiteral("json"), QStringLiteral("Print one JSON object per line, for scripts.")});
    if (takesDevice()) {
        all.append({QStringLiteral("device"),
                    QStringLiteral("Simulate a device with these settings (see 'device'), for\n"
                                   "example region=de_DE,hour-format=24."),
                    QStringLiteral("KEY=VALUE,...")});
    }
    all.append({{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show the help of this command.")});
    return all;
}

} // namespace zel::tool
