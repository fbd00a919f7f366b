// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Changes of settings of the Linux host.

#include "settings/SettingListener.h"

#include "bridge/Diagnostic.h"
#include "settings/PpsManagerSource.h"

namespace zel::utility::i18n {

class SettingListener::Source
{
public:
    explicit Source(std::unique_ptr<QObject> listener) : m_listener(std::move(listener)) {}

private:
    std::unique_ptr<QObject> m_listener;
};

SettingListener::SettingListener(PpsManager* manager) : m_manager(manager)
{
    Diagnostic::checkConnection(connect(manager, SIGNAL(changed()), this, SIGNAL(changed()), Qt::QueuedConnection),
                                "zel::utility::i18n::SettingListener::SettingListener(PpsManager*)",
                                "PpsManager::changed()");
    listen();
}

SettingListener::~SettingListener() = default;

void SettingListener::listen()
{
    m_source.reset();
    if (zel::host::Setting* const setting = m_manager->m_source->setting.get()) {
        m_source = std::make_unique<Source>(setting->listen());
    }
}

// The host's setting reports its changes to the manager itself.
void SettingListener::onChange() {}

} // namespace zel::utility::i18n
