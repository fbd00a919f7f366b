#include "settings/PpsManager.h"

namespace zel::utility::i18n {

void PpsManager::setValue(const QVariant& value)
{
    {
        const std::lock_guard lock(m_valueMutex);
        if (value == m_value) {
            return;
        }
        m_value = value;
    }
    Q_EMIT changed();
}

} // namespace zel::utility::i18n
