#include "settings/SettingsPortal.h"

#include <atomic>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QThread>
#include <QtDBus/QDBusError>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingReply>
#include <QtDBus/QDBusServiceWatcher>

namespace zel::utility::i18n {

namespace {

// Functions, because nothing is to be constructed when the library is loaded.
QString service()
{
    return QStringLiteral("org.freedesktop.portal.Desktop");
}

QString path()
{
    return QStringLiteral("/org/freedesktop/portal/desktop");
}

QString interface()
{
    return QStringLiteral("org.freedesktop.portal.Settings");
}

QString readOne()
{
    return QStringLiteral("ReadOne");
}

// A connection of its own: what becomes of the common one is the application's business.
QString connectionName()
{
    static std::atomic<int> last(0);
    return QStringLiteral("zel-settings-portal-%1").arg(++last);
}

// "Read", the older way to ask, has the value in a variant within the variant.
QVariant unwrapped(QVariant value)
{
    while (value.userType() == qMetaTypeId<QDBusVariant>()) {
        value = qvariant_cast<QDBusVariant>(value).variant();
    }
    return value;
}

} // namespace

SettingsPortal::SettingsPortal(const QString& group, const QString& key, int patience)
    : m_group(group),
      m_key(key),
      m_address(BusProbe::sessionAddress()),
      m_bus(QString())
{
    if (m_address.isEmpty()) {
        m_fault = QStringLiteral("no session bus");
        return;
    }
    const QDeadlineTimer deadline(patience);
    m_probe = std::make_unique<BusProbe>(m_address);
    if (!m_probe->fault().isEmpty()) {
        m_fault = m_probe->fault();
    } else if (m_probe->waitForAnswer(patience)) {
        join();
        wait(deadline);
    } else {
        m_fault = QStringLiteral("the session bus does not answer");
        // Queued, because the probe has served its turn then and is destroyed.
        connect(m_probe.get(), SIGNAL(answered()), this, SLOT(join()), Qt::QueuedConnection);
        m_probe->listen();
    }
}

SettingsPortal::~SettingsPortal()
{
    m_call.reset();
    if (!m_bus.name().isEmpty()) {
        QDBusConnection::disconnectFromBus(m_bus.name());
    }
}

void SettingsPortal::join()
{
    m_probe.reset();
    m_bus = QDBusConnection::connectToBus(m_address, connectionName());
    if (!m_bus.isConnected()) {
        lose(QStringLiteral("no session bus: ") + m_bus.lastError().message());
        return;
    }
    const QString local = QStringLiteral("org.freedesktop.DBus.Local");
    m_bus.connect(QString(), QString(), local, QStringLiteral("Disconnected"), this, SLOT(onBusGone()));
    m_bus.connect(service(), path(), interface(), QStringLiteral("SettingChanged"), {m_group, m_key},
                  QStringLiteral("ssv"), this, SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    auto* const watcher = new QDBusServiceWatcher(service(), m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, SIGNAL(serviceOwnerChanged(QString, QString, QString)), this,
            SLOT(onOwnerChanged(QString, QString, QString)));
    ask(readOne());
}

void SettingsPortal::ask(const QString& method)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service(), path(), interface(), method);
    message << m_group << m_key;
    m_method = method;
    m_call = std::make_unique<QDBusPendingCallWatcher>(m_bus.asyncCall(message));
    // Queued, because the call is destroyed there.
    connect(m_call.get(), SIGNAL(finished(QDBusPendingCallWatcher*)), this, SLOT(onFinished()), Qt::QueuedConnection);
}

void SettingsPortal::wait(const QDeadlineTimer& deadline)
{
    while (m_call && !deadline.hasExpired()) {
        onFinished();
        QThread::msleep(1);
    }
    if (m_call) {
        m_fault = QStringLiteral("the settings portal does not answer");
    }
}

void SettingsPortal::onFinished()
{
    if (!m_call || !m_call->isFinished()) {
        return;
    }
    const QDBusPendingReply<QDBusVariant> reply = *m_call;
    if (!reply.isError()) {
        take(reply.value());
    } else if (reply.error().type() == QDBusError::UnknownMethod && m_method == readOne()) {
        ask(QStringLiteral("Read"));
    } else {
        lose(QStringLiteral("the settings portal does not tell: ") + reply.error().message());
    }
}

void SettingsPortal::onSettingChanged(const QString& /*group*/, const QString& /*key*/, const QDBusVariant& value)
{
    take(value);
}

void SettingsPortal::onOwnerChanged(const QString& /*name*/, const QString& /*previous*/, const QString& owner)
{
    if (owner.isEmpty()) {
        lose(QStringLiteral("the settings portal has gone"));
    } else {
        ask(readOne());
    }
}

void SettingsPortal::onBusGone()
{
    lose(QStringLiteral("the session bus has gone"));
}

// Whatever is heard last holds; an answer that is still under way would be older.
void SettingsPortal::take(const QDBusVariant& value)
{
    m_call.reset();
    m_value = unwrapped(value.variant());
    m_fault.clear();
    Q_EMIT changed();
}

void SettingsPortal::lose(const QString& fault)
{
    m_call.reset();
    m_value = QVariant();
    m_fault = fault;
    Q_EMIT changed();
}

} // namespace zel::utility::i18n
