// Changes of the host's settings.

#include "DeviceObserver.h"
#include "settings/HostClock.h"
#include "settings/HostTimeZone.h"
#include <memory>

namespace zel::tool {

namespace {

using zel::utility::i18n::HostClock;
using zel::utility::i18n::HostSetting;
using zel::utility::i18n::HostTimeZone;

QMap<QString, QString> valuesOf(const QObject& observer)
{
    QMap<QString, QString> values;
    for (const HostSetting* const setting : observer.findChildren<HostSetting*>()) {
        values[QString::fromLatin1(setting->metaObject()->className())] = setting->value().toString();
    }
    return values;
}

} // namespace

DeviceObserver::DeviceObserver(QObject* parent) : QObject(parent)
{
    for (HostSetting* const setting : std::initializer_list<HostSetting*>{new HostClock, new HostTimeZone}) {
        setting->setParent(this);
        connect(setting, SIGNAL(changed()), this, SLOT(look()));
    }
    m_values = valuesOf(*this);
}

DeviceObserver::~DeviceObserver() = default;

void DeviceObserver::look()
{
    const QMap<QString, QString> values = valuesOf(*this);
    if (values != m_values) {
        m_values = values;
        Q_EMIT changed();
    }
}

} // namespace zel::tool
