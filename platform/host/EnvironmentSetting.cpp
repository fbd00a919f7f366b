// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "EnvironmentSetting.h"

#include <cstdlib>

namespace zel::host {

bool EnvironmentSetting::isInUse(const char* variable)
{
    return ::secure_getenv(variable) != nullptr;
}

QVariant EnvironmentSetting::value() const
{
    const QString text = qEnvironmentVariable(m_variable);
    return text.isEmpty() ? QVariant() : QVariant(text);
}

} // namespace zel::host
