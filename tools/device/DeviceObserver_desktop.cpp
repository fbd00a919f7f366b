// Changes of the host's settings, as the library hears of them.

#include "device/Assignments.h"
#include "device/Device.h"
#include "device/DeviceObserver.h"
#include "settings/ClockSetting.h"
#include "settings/RegionNotifier.h"
#include "settings/TimeZoneSetting.h"
#include "terminal/Failure.h"

namespace zel::tool {

namespace {

QMap<QString, QString> valuesNow()
{
    QMap<QString, QString> values;
    for (const QString& key : Assignments::keys()) {
        values[key] = Device::get(key).value_or(QString());
    }
    return values;
}

} // namespace

DeviceObserver::DeviceObserver(QObject* parent) : QObject(parent), m_values(valuesNow())
{
    namespace i18n = zel::utility::i18n;
    for (const QObject* const setting :
         std::initializer_list<QObject*>{new i18n::ClockSetting(this), new i18n::TimeZoneSetting(this)}) {
        requireConnection(connect(setting, SIGNAL(changed()), this, SLOT(look())));
    }
    new i18n::RegionNotifier(this, SLOT(look()), this);
}

DeviceObserver::~DeviceObserver() = default;

void DeviceObserver::look()
{
    const QMap<QString, QString> values = valuesNow();
    if (values != m_values) {
        m_values = values;
        Q_EMIT changed();
    }
}

} // namespace zel::tool
