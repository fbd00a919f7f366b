// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "commands/OtherRegion.h"

#include "device/Device.h"
#include "terminal/Failure.h"

namespace zel::tool {

OtherRegion::OtherRegion(const Arguments& arguments)
{
    if (!arguments.has(QStringLiteral("locale"))) {
        return;
    }
    const NamedLocale locale = arguments.locale();
    m_directory = std::make_unique<QTemporaryDir>();
    if (!m_directory->isValid()) {
        throw Failure(QStringLiteral("no temporary directory for the region: ") + m_directory->errorString());
    }
    Device::useRegion(locale.name, m_directory->path());
}

QCommandLineOption OtherRegion::option()
{
    return {QStringLiteral("locale"), QStringLiteral("Locale (default: region of the device)."), QStringLiteral("L")};
}

} // namespace zel::tool
