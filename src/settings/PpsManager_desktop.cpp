// Settings, taken from the Linux host.

#include "settings/PpsManager.h"

#include "bridge/Diagnostic.h"
#include "settings/HostClock.h"
#include "settings/HostTimeZone.h"
#include <QtCore/QLatin1String>

namespace zel::utility::i18n {

namespace {

std::unique_ptr<HostSetting> settingFor(QLatin1String path, QLatin1String key)
{
    if (path == QLatin1String("/pps/system/settings") && key == QLatin1String("hourFormat")) {
        return std::make_unique<HostClock>();
    }
    if (path == QLatin1String("/pps/services/confstr/_CS_TIMEZONE") && key == QLatin1String("_CS_TIMEZONE")) {
        return std::make_unique<HostTimeZone>();
    }
    return nullptr;
}

} // namespace

class PpsManager::Source
{
public:
    Source(const char* path, const char* key) : setting(settingFor(QLatin1String(path), QLatin1String(key))) {}

    const std::unique_ptr<HostSetting> setting;
};

PpsManager::PpsManager(const char* path, const char* map, const char* key, QObject* parent)
    : QObject(parent),
      m_source(std::make_unique<Source>(path, key)),
      m_path(path),
      m_map(map),
      m_key(key)
{
    if (!m_source->setting) {
        Diagnostic::write(QtCriticalMsg,
                          "zel::utility::i18n::PpsManager::PpsManager(const char*, const char*, const char*, QObject*)",
                          "failed to open PPS at", m_path, " : ",
                          QStringLiteral("no setting of this host stands for it"));
        return;
    }
    // Direct: the manager may belong to no thread.
    connect(m_source->setting.get(), SIGNAL(changed()), this, SLOT(onPpsUpdate()), Qt::DirectConnection);
    onPpsUpdate();
}

PpsManager::~PpsManager() = default;

// Asked of the host's setting, which also notices a change of the environment, of which nobody is told.
QVariant PpsManager::value() const
{
    return m_source->setting ? m_source->setting->value() : QVariant();
}

bool PpsManager::refresh()
{
    return true;
}

void PpsManager::onPpsUpdate()
{
    if (!m_source->setting) {
        Diagnostic::write(QtCriticalMsg, "void zel::utility::i18n::PpsManager::onPpsUpdate()",
                          "called without a PpsObject");
        return;
    }
    if (setValue(value())) {
        Q_EMIT changed();
    }
}

} // namespace zel::utility::i18n
