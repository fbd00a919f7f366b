#ifndef ZEL_HOST_BUSPROBE_H
#define ZEL_HOST_BUSPROBE_H

#include <memory>
#include <QtCore/QObject>
#include <QtCore/QSocketNotifier>
#include <QtCore/QString>
#include <zel/host/Setting.h>

namespace zel::host {

/**
 * Tells whether there is somebody at the address of a message bus who answers. Qt D-Bus waits for half a minute for a
 * bus that takes connections but is silent; this says a first word and lets its owner decide how long to wait.
 */
class BusProbe : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BusProbe)

public:
    /** The address of the user's session bus; empty where there is none. */
    static QString sessionAddress();

    BusProbe(const QString& address, Reporter reporter, QObject* parent);
    ~BusProbe() override;

    /** Why nobody can be asked; empty otherwise. */
    QString reason() const { return m_reason; }

    /** Whether an answer comes within some milliseconds. An address of no local socket counts as good. */
    bool waitForAnswer(int milliseconds) const;

    /** From now on answered() is emitted, once, when an answer has come, or soon where none can be waited for. */
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
