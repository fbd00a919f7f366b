// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_HOST_SETTINGSPORTAL_H
#define ZEL_HOST_SETTINGSPORTAL_H

#include "BusProbe.h"
#include <memory>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>
#include <QtCore/QVariant>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusVariant>

class QDBusError;
class QDeadlineTimer;

namespace zel::host {

/**
 * A setting of the desktop, read from the settings portal on the session bus and followed there, even if the portal or
 * the bus goes away and comes back. Changes arrive through the event loop of its thread.
 */
class SettingsPortal : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingsPortal)

public:
    /** The timeout of a portal that requests the setting later, when the event loop of the thread runs. */
    static constexpr int later = 0;

    /**
     * Requests the setting and waits up to the timeout. A later answer is used when it arrives. With `later`, emits no
     * reason before the first value: another portal may have one, which a failure of this one must not replace.
     *
     * @param group the namespace of the setting
     */
    SettingsPortal(const QString& group, const QString& key, int timeoutMs, Reporter reporter);
    ~SettingsPortal() override;

    /** The setting; invalid while the portal does not answer. */
    QVariant value() const { return m_value; }

    /** The reason why there is no value. */
    QString reason() const { return m_reason; }

Q_SIGNALS:
    /** The value or the reason changed. */
    void changed(const QVariant& value, const QString& reason);

private Q_SLOTS:
    void onBusAnswered();
    void onFinished();
    void onSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
    void onOwnerChanged(const QString& name, const QString& previous, const QString& owner);
    void onBusGone();
    void retry();

private:
    bool findBus();
    void awaitBus();
    bool join();
    void leave();
    bool listen();
    QDBusMessage question(const QString& method) const;
    void askNow(const QDeadlineTimer& deadline);
    void ask(const QString& method);
    QString silence() const;
    void take(const QDBusVariant& value);
    void refuse(const QDBusError& error);
    void lose(const QString& reason);
    void retryLater();

    const QString m_group;
    const QString m_key;
    const bool m_emitsEveryFailure; // otherwise only those that take a value away
    const Reporter m_reporter;
    QString m_address;
    QVariant m_value;
    QString m_reason;
    std::unique_ptr<BusProbe> m_probe;
    QDBusConnection m_bus;
    bool m_isListening = false;
    QString m_method;
    std::unique_ptr<QDBusPendingCallWatcher> m_call;
    QTimer m_retry;
};

} // namespace zel::host

#endif
