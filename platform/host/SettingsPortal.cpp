// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "SettingsPortal.h"

#include "Connection.h"
#include <algorithm>
#include <atomic>
#include <QtCore/QDeadlineTimer>
#include <QtDBus/QDBusError>
#include <QtDBus/QDBusPendingReply>
#include <QtDBus/QDBusReply>
#include <utility>

namespace zel::host {

namespace {

// A failed retry doubles the time to the next one.
constexpr int firstRetryMs = 1000;
constexpr int lastRetryMs = 60000;

// Functions, so that nothing is constructed when the library is loaded.
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

QString read()
{
    return QStringLiteral("Read");
}

// The bus itself has this service name.
QString busService()
{
    return QStringLiteral("org.freedesktop.DBus");
}

QString busPath()
{
    return QStringLiteral("/org/freedesktop/DBus");
}

// A separate connection: the application may close the shared one.
QString connectionName()
{
    static std::atomic<int> last(0);
    return QStringLiteral("zel-settings-portal-%1").arg(++last);
}

// The older method "Read" returns the value in a variant within a variant.
QVariant unwrapped(QVariant value)
{
    while (value.userType() == qMetaTypeId<QDBusVariant>()) {
        value = qvariant_cast<QDBusVariant>(value).variant();
    }
    return value;
}

QString explanation(const QDBusError& error)
{
    if (error.type() == QDBusError::ServiceUnknown) {
        return QStringLiteral("the settings portal is not installed");
    }
    if (error.name() == QLatin1String("org.freedesktop.portal.Error.NotFound")) {
        return QStringLiteral("the settings portal does not have the setting");
    }
    return QStringLiteral("the settings portal answered with an error: ") + error.message();
}

// Errors that end without a signal.
bool isSilence(const QDBusError& error)
{
    switch (error.type()) {
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return true;
    default:
        return false;
    }
}

} // namespace

SettingsPortal::SettingsPortal(const QString& group, const QString& key, int timeoutMs, Reporter reporter)
    : m_group(group),
      m_key(key),
      m_emitsEveryFailure(timeoutMs != later),
      m_reporter(reporter),
      m_bus(QString()),
      m_retry(this)
{
    // The slot's argument types are looked up by name, which Qt registers at the first use of a type.
    qRegisterMetaType<QDBusVariant>();
    m_retry.setSingleShot(true);
    checkConnection(m_reporter, connect(&m_retry, SIGNAL(timeout()), this, SLOT(retry())),
                    "zel::host::SettingsPortal::SettingsPortal(const QString&, const QString&, int, Reporter)",
                    "QTimer::timeout()");
    if (timeoutMs == later) {
        QMetaObject::invokeMethod(this, "retry", Qt::QueuedConnection);
        return;
    }
    const QDeadlineTimer deadline(timeoutMs);
    if (!findBus()) {
        return;
    }
    if (!m_probe->waitForAnswer(timeoutMs)) {
        lose(QStringLiteral("the session bus does not answer"));
        awaitBus();
    } else if (join()) {
        askNow(deadline);
    }
}

SettingsPortal::~SettingsPortal()
{
    leave();
}

bool SettingsPortal::findBus()
{
    m_address = BusProbe::sessionAddress(); // a bus may have been started since
    m_probe = std::make_unique<BusProbe>(m_address, m_reporter, this);
    const QString reason = m_probe->reason();
    if (!reason.isEmpty()) {
        m_probe.reset();
        lose(reason);
        retryLater();
    }
    return reason.isEmpty();
}

void SettingsPortal::awaitBus()
{
    // Queued: join() destroys the probe.
    checkConnection(m_reporter,
                    connect(m_probe.get(), SIGNAL(answered()), this, SLOT(onBusAnswered()), Qt::QueuedConnection),
                    "void zel::host::SettingsPortal::awaitBus()", "BusProbe::answered()");
    m_probe->listen();
}

bool SettingsPortal::join()
{
    m_probe.reset();
    m_bus = QDBusConnection::connectToBus(m_address, connectionName());
    if (!m_bus.isConnected()) {
        lose(QStringLiteral("no session bus: ") + m_bus.lastError().message());
        retryLater();
        return false;
    }
    m_isListening = listen();
    return true;
}

void SettingsPortal::leave()
{
    m_call.reset();
    if (!m_bus.name().isEmpty()) {
        QDBusConnection::disconnectFromBus(m_bus.name());
    }
    m_bus = QDBusConnection(QString());
}

bool SettingsPortal::listen()
{
    const QString local = QStringLiteral("org.freedesktop.DBus.Local");
    const bool isListening =
        m_bus.connect(QString(), QString(), local, QStringLiteral("Disconnected"), this, SLOT(onBusGone())) &&
        m_bus.connect(service(), path(), interface(), QStringLiteral("SettingChanged"), {m_group, m_key},
                      QStringLiteral("ssv"), this, SLOT(onSettingChanged(QString, QString, QDBusVariant))) &&
        m_bus.connect(busService(), busPath(), busService(), QStringLiteral("NameOwnerChanged"), {service()},
                      QStringLiteral("sss"), this, SLOT(onOwnerChanged(QString, QString, QString)));
    if (!isListening) {
        m_reporter(QtWarningMsg, QStringLiteral("bool zel::host::SettingsPortal::listen() cannot subscribe to the "
                                                "settings portal and polls it"));
    }
    return isListening;
}

QDBusMessage SettingsPortal::question(const QString& method) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(service(), path(), interface(), method);
    message << m_group << m_key;
    return message;
}

void SettingsPortal::askNow(const QDeadlineTimer& deadline)
{
    const auto askOnce = [&](const QString& method) {
        const int timeoutMs = std::max(1, static_cast<int>(deadline.remainingTime()));
        return QDBusReply<QDBusVariant>(m_bus.call(question(method), QDBus::Block, timeoutMs));
    };
    QDBusReply<QDBusVariant> reply = askOnce(readOne());
    if (reply.error().type() == QDBusError::UnknownMethod) {
        reply = askOnce(read());
    }
    if (reply.isValid()) {
        take(reply.value());
    } else if (isSilence(reply.error())) {
        lose(silence());
        ask(readOne());
    } else {
        refuse(reply.error());
    }
}

void SettingsPortal::ask(const QString& method)
{
    m_method = method;
    m_call = std::make_unique<QDBusPendingCallWatcher>(m_bus.asyncCall(question(method)), this);
    // Queued: onFinished() destroys the call.
    checkConnection(m_reporter,
                    connect(m_call.get(), SIGNAL(finished(QDBusPendingCallWatcher*)), this, SLOT(onFinished()),
                            Qt::QueuedConnection),
                    "void zel::host::SettingsPortal::ask(const QString&)", "QDBusPendingCallWatcher::finished()");
}

void SettingsPortal::onFinished()
{
    if (!m_call || !m_call->isFinished()) {
        return; // the answer to an abandoned call
    }
    const QDBusPendingReply<QDBusVariant> reply = *m_call;
    if (!reply.isError()) {
        take(reply.value());
    } else if (reply.error().type() == QDBusError::UnknownMethod && m_method == readOne()) {
        ask(read());
    } else {
        refuse(reply.error());
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
        retryLater(); // the bus starts it on request
    } else {
        ask(readOne());
    }
}

void SettingsPortal::onBusGone()
{
    leave();
    lose(QStringLiteral("the session bus has gone"));
    retryLater();
}

void SettingsPortal::onBusAnswered()
{
    if (join()) {
        ask(readOne());
    }
}

// The bus answers at once, even if the portal does not.
QString SettingsPortal::silence() const
{
    constexpr int timeoutMs = 10;
    QDBusMessage message =
        QDBusMessage::createMethodCall(busService(), busPath(), busService(), QStringLiteral("NameHasOwner"));
    message << service();
    const QDBusReply<bool> hasOwner = m_bus.call(message, QDBus::Block, timeoutMs);
    return hasOwner.isValid() && !hasOwner.value() ? QStringLiteral("the settings portal is starting")
                                                   : QStringLiteral("the settings portal does not answer");
}

// The last value holds; a pending answer would be older.
void SettingsPortal::take(const QDBusVariant& value)
{
    m_call.reset();
    m_value = unwrapped(value.variant());
    m_reason.clear();
    m_retry.stop();
    m_retry.setInterval(0);
    if (!m_isListening) {
        retryLater();
    }
    Q_EMIT changed(m_value, m_reason);
}

void SettingsPortal::refuse(const QDBusError& error)
{
    lose(isSilence(error) ? silence() : explanation(error));
    if (isSilence(error) || !m_isListening) {
        retryLater();
    }
}

void SettingsPortal::lose(const QString& reason)
{
    m_call.reset();
    const bool hadValue = std::exchange(m_value, QVariant()).isValid();
    m_reason = reason;
    if (hadValue || m_emitsEveryFailure) {
        Q_EMIT changed(m_value, m_reason);
    }
}

void SettingsPortal::retryLater()
{
    m_retry.setInterval(qBound(firstRetryMs, 2 * m_retry.interval(), lastRetryMs));
    // Queued: a timer needs the event loop of the thread, which may not run yet.
    QMetaObject::invokeMethod(&m_retry, "start", Qt::QueuedConnection);
}

void SettingsPortal::retry()
{
    if (m_bus.isConnected()) {
        ask(readOne());
    } else if (findBus()) {
        awaitBus();
    }
}

} // namespace zel::host
