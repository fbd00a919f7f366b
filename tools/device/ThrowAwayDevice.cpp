// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "device/ThrowAwayDevice.h"

#include "device/Assignments.h"
#include "device/Device.h"
#include "terminal/Failure.h"

namespace zel::tool {

ThrowAwayDevice::ThrowAwayDevice(const QString& settings)
{
    const auto values = Assignments::parse(settings.split(QLatin1Char(',')));
    if (!m_root.isValid()) {
        throw Failure(QStringLiteral("no temporary directory for the device: ") + m_root.errorString());
    }
    Device::useEmpty(m_root.path());
    Device::set(values, {});
    const QString zone = values.value(Assignments::timeZone());
    if (!zone.isEmpty()) {
        qputenv("TZ", zone.toUtf8()); // moments without an offset are in the device's zone
    }
}

} // namespace zel::tool
