// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Settings of the Linux host.

#include "settings/PpsManager.h"

#include "bridge/DeferredMessages.h"
#include "bridge/Diagnostic.h"
#include "settings/HostReporter.h"
#include "settings/PpsManagerSource.h"
#include <zel/host/Settings.h>

namespace zel::utility::i18n {

namespace {

std::unique_ptr<zel::host::Setting> settingFor(PpsManager::HostSetting setting)
{
    switch (setting) {
    case PpsManager::HostSetting::None:
        break;
    case PpsManager::HostSetting::Clock:
        return zel::host::clock(&reportOfHost);
    case PpsManager::HostSetting::TimeZone:
        return zel::host::timeZone(&reportOfHost);
    }
    return nullptr;
}

} // namespace

PpsManager::Source::Source(HostSetting host) : setting(settingFor(host)) {}

void PpsManager::Source::update(PpsManager& manager)
{
    const DeferredMessages messages;
    // Both under one lock, so that a value that one thread read is not stored after a later one of another thread.
    std::unique_lock lock(m_mutex);
    const bool isOther = manager.setValue(setting->value());
    lock.unlock();
    if (isOther) {
        Q_EMIT manager.changed();
    }
}

PpsManager::PpsManager(const char* path, const char* map, const char* key, HostSetting host, QObject* parent)
    : QObject(parent),
      m_source(std::make_unique<Source>(host)),
      m_path(path),
      m_map(map),
      m_key(key)
{
    constexpr const char* signature =
        "zel::utility::i18n::PpsManager::PpsManager(const char*, const char*, const char*, QObject*)";
    if (!m_source->setting) {
        Diagnostic::write(QtCriticalMsg, signature, "failed to open PPS at", m_path, " : ",
                          QStringLiteral("this host has no such setting"));
        return;
    }
    // Direct: the manager may belong to no thread.
    if (!connect(m_source->setting.get(), SIGNAL(changed()), this, SLOT(onPpsUpdate()), Qt::DirectConnection)) {
        Diagnostic::write(QtCriticalMsg, signature, "failed to connect to PPS channel for", m_path);
    }
    onPpsUpdate();
}

PpsManager::~PpsManager() = default;

bool PpsManager::refresh()
{
    if (m_source->setting) {
        m_source->update(*this);
    }
    return true;
}

void PpsManager::onPpsUpdate()
{
    if (!m_source->setting) {
        Diagnostic::write(QtCriticalMsg, "void zel::utility::i18n::PpsManager::onPpsUpdate()",
                          "called without a PpsObject");
        return;
    }
    m_source->update(*this);
}

} // namespace zel::utility::i18n
