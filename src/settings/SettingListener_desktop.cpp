// Changes of settings, heard from the shared reader alone.

#include "settings/SettingListener.h"

#include "settings/PpsManager.h"

namespace zel::utility::i18n {

class SettingListener::Source
{
};

SettingListener::SettingListener(PpsManager* manager) : m_manager(manager)
{
    connect(manager, SIGNAL(changed()), this, SIGNAL(changed()), Qt::QueuedConnection);
}

SettingListener::~SettingListener() = default;

void SettingListener::listen() {}

void SettingListener::onChange() {}

} // namespace zel::utility::i18n
