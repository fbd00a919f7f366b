// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "settings/PpsManager.h"

namespace zel::utility::i18n {

QVariant PpsManager::value() const
{
    const std::lock_guard lock(m_valueMutex);
    return m_value;
}

bool PpsManager::setValue(const QVariant& value)
{
    const std::lock_guard lock(m_valueMutex);
    if (value == m_value) {
        return false;
    }
    m_value = value;
    return true;
}

} // namespace zel::utility::i18n
