// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Changes of settings of the device platform.

#include "settings/SettingListener.h"

#include "bridge/Diagnostic.h"
#include "settings/PpsManager.h"
#include <QtCore/QTimer>
#include <zel/PpsObject.h>

namespace zel::utility::i18n {

namespace {

constexpr int writeInterval = 20; // milliseconds that an object may be half written

} // namespace

class SettingListener::Source : public zel::PpsObject
{
public:
    using PpsObject::PpsObject;
};

SettingListener::SettingListener(PpsManager* manager)
    : m_manager(manager),
      m_source(std::make_unique<Source>(QString::fromLatin1(manager->path())))
{
    constexpr const char* signature = "zel::utility::i18n::SettingListener::SettingListener(PpsManager*)";
    Diagnostic::checkConnection(connect(m_source.get(), SIGNAL(readyRead()), this, SLOT(onChange())), signature,
                                "zel::PpsObject::readyRead()");
    listen();
    // Connected last, so that earlier changes are not reported.
    Diagnostic::checkConnection(connect(manager, SIGNAL(changed()), this, SIGNAL(changed()), Qt::QueuedConnection),
                                signature, "PpsManager::changed()");
}

SettingListener::~SettingListener() = default;

void SettingListener::listen()
{
    m_source->open(zel::PpsOpenMode::Subscribe);
    // After the source has read the object, so that no change is missed. Half an object is reported when it is whole.
    m_manager->refresh();
}

void SettingListener::onChange()
{
    if (!m_manager->refresh()) {
        QTimer::singleShot(writeInterval, this, SLOT(onChange()));
    }
}

} // namespace zel::utility::i18n
