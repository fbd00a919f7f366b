// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "device/Device.h"

#include "device/Assignments.h"

namespace zel::tool {

QTimeZone Device::timeZone()
{
    const QByteArray id = get(Assignments::timeZone()).value_or(QString()).toLatin1();
    return id.isEmpty() ? QTimeZone() : QTimeZone(id);
}

} // namespace zel::tool
