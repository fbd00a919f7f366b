// Changes of the device platform's settings.

#include "device/Assignments.h"
#include "device/Device.h"
#include "device/DeviceObserver.h"
#include "terminal/Failure.h"
#include <QtCore/QTimer>
#include <zel/PpsObject.h>
#include <zel/system/LocaleHandler.h>

namespace zel::tool {

namespace {

constexpr int writeInterval = 20; // milliseconds for which an object may be half written
constexpr int mostAttempts = 10;

// Reads all values; one that cannot be read keeps its last value, as in the library. Returns whether all could be read.
bool update(QMap<QString, QString>& values)
{
    bool isComplete = true;
    for (const QString& key : {Assignments::hourFormat(), Assignments::timeZone()}) {
        try {
            values[key] = Device::get(key).value_or(QString());
        } catch (const Failure&) {
            isComplete = false;
        }
    }
    values[Assignments::region()] = Device::region().bcp47Name();
    return isComplete;
}

} // namespace

DeviceObserver::DeviceObserver(QObject* parent) : QObject(parent)
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
    // Last, so that changes in between are reported.
    look();
}

DeviceObserver::~DeviceObserver() = default;

void DeviceObserver::look()
{
    QMap<QString, QString> values = m_values;
    // The object may be torn by now; it is not reported again if it becomes whole with the same contents.
    if (!update(values) && m_attempts < mostAttempts) {
        ++m_attempts;
        QTimer::singleShot(writeInterval, this, SLOT(look()));
    } else {
        m_attempts = 0;
    }
    if (values != m_values) {
        m_values = values;
        Q_EMIT changed();
    }
}

} // namespace zel::tool
