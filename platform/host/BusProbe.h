// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_HOST_BUSPROBE_H
#define ZEL_HOST_BUSPROBE_H

#include <memory>
#include <QtCore/QObject>
#include <QtCore/QSocketNotifier>
#include <QtCore/QString>
#include <zel/host/Setting.h>

namespace zel::host {

/**
 * Tests whether a message bus answers. Qt D-Bus waits half a minute for a bus that accepts connections but is silent;
 * the probe sends a first message and lets its owner choose the timeout.
 */
class BusProbe : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BusProbe)

public:
    /** The address of the user's session bus; empty if there is none. */
    static QString sessionAddress();

    BusProbe(const QString& address, Reporter reporter, QObject* parent);
    ~BusProbe() override;

    /** The reason why the bus cannot be probed; empty otherwise. */
    QString reason() const { return m_reason; }

    /** Whether an answer arrives within the timeout in ms. True for an address that is not a local socket. */
    bool waitForAnswer(int milliseconds) const;

    /** Emits answered() once: when an answer arrives, or soon if it cannot be waited for. */
    void listen();

Q_SIGNALS:
    void answered();

private Q_SLOTS:
    void startListening();
    void onReadable();

private:
    void open(const QByteArray& name);

    const Reporter m_reporter;
    int m_socket = -1;
    QString m_reason;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace zel::host

#endif
