#ifndef ZEL_TOOL_DEVICEOBSERVER_H
#define ZEL_TOOL_DEVICEOBSERVER_H

#include "device/Assignments.h"
#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>

namespace zel::tool {

/** Reports changes of the device's clock, time zone or region. Needs an event loop. */
class DeviceObserver : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DeviceObserver)

public:
    explicit DeviceObserver(QObject* parent = nullptr);
    ~DeviceObserver() override;

    /** The last known clock of the device: 12 or 24. */
    int clock() const { return m_values.value(Assignments::hourFormat()) == QLatin1String("24") ? 24 : 12; }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void look();

private:
    QMap<QString, QString> m_values;
    int m_attempts = 0; // of reading an object that is being written
};

} // namespace zel::tool

#endif
