// Changes of the host's settings.

#include "device/Assignments.h"
#include "device/DeviceObserver.h"
#include "terminal/Failure.h"
#include <zel/host/Settings.h>

namespace zel::tool {

// Separate from the library's, with a separate connection to the session bus.
DeviceObserver::DeviceObserver(QObject* parent) : QObject(parent)
{
    const auto observe = [this](const QString& key, std::unique_ptr<zel::host::Setting> setting) {
        requireConnection(connect(setting.get(), SIGNAL(changed()), this, SLOT(look())));
        if (auto listener = setting->listen()) {
            listener.release()->setParent(setting.get());
        }
        setting->setObjectName(key);
        setting.release()->setParent(this);
    };
    observe(Assignments::hourFormat(), zel::host::clock(&zel::host::ignore));
    observe(Assignments::timeZone(), zel::host::timeZone(&zel::host::ignore));
    observe(Assignments::region(), zel::host::region(&zel::host::ignore));
    look();
}

DeviceObserver::~DeviceObserver() = default;

void DeviceObserver::look()
{
    QMap<QString, QString> values;
    for (const auto* const setting : findChildren<zel::host::Setting*>()) {
        values[setting->objectName()] = setting->value().toString();
    }
    if (values != m_values) {
        m_values = values;
        Q_EMIT changed();
    }
}

} // namespace zel::tool
