// Changes of the device platform's settings.

#include "Assignments.h"
#include "Device.h"
#include "DeviceObserver.h"
#include "Failure.h"
#include <zel/PpsObject.h>
#include <zel/system/LocaleHandler.h>

namespace zel::tool {

namespace {

// The values as they are now; what cannot be read stays as it was, as it does for the library.
QMap<QString, QString> valuesNow(QMap<QString, QString> values)
{
    for (const QString& key : {Assignments::hourFormat(), Assignments::timeZone()}) {
        try {
            values[key] = Device::get(key).value_or(QString());
        } catch (const Failure&) {
            continue;
        }
    }
    values[Assignments::region()] = Device::region().bcp47Name();
    return values;
}

} // namespace

DeviceObserver::DeviceObserver(QObject* parent) : QObject(parent), m_values(valuesNow({}))
{
    for (const char* const path : {"/pps/system/settings", "/pps/services/confstr/_CS_TIMEZONE"}) {
        auto* const object = new PpsObject(QString::fromLatin1(path), this);
        requireConnection(connect(object, SIGNAL(readyRead()), this, SLOT(look())));
        if (!object->open(PpsOpenMode::Subscribe)) {
            throw Failure(object->errorString());
        }
    }
    auto* const region = new system::LocaleHandler(system::LocaleType::Region);
    region->setParent(this);
    requireConnection(connect(region, SIGNAL(changed()), this, SLOT(look())));
}

DeviceObserver::~DeviceObserver() = default;

void DeviceObserver::look()
{
    const QMap<QString, QString> values = valuesNow(m_values);
    if (values != m_values) {
        m_values = values;
        Q_EMIT changed();
    }
}

} // namespace zel::tool
