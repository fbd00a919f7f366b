// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "BusProbe.h"

#include "Connection.h"
#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <poll.h>
#include <QtCore/QFileInfo>
#include <QtCore/QStringList>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace zel::host {

namespace {

// The socket of an address of the form "unix:path=/run/user/1000/bus,guid=..."; an abstract one begins with a zero
// byte. Empty for another kind of address.
QByteArray socketOf(const QString& address)
{
    const QString first = address.section(QLatin1Char(';'), 0, 0);
    if (!first.startsWith(QLatin1String("unix:"))) {
        return {};
    }
    for (const QString& part : first.mid(5).split(QLatin1Char(','))) {
        QByteArray value = QByteArray::fromPercentEncoding(part.section(QLatin1Char('='), 1).toUtf8());
        if (part.startsWith(QLatin1String("path="))) {
            return value;
        }
        if (part.startsWith(QLatin1String("abstract="))) {
            return '\0' + value;
        }
    }
    return {};
}

} // namespace

QString BusProbe::sessionAddress()
{
    QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (!address.isEmpty()) {
        return address;
    }
    // libdbus would start a separate bus, on which no portal answers.
    const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    return QFileInfo::exists(socket) ? QStringLiteral("unix:path=") + socket : QString();
}

BusProbe::BusProbe(const QString& address, Reporter reporter, QObject* parent) : QObject(parent), m_reporter(reporter)
{
    const QByteArray name = socketOf(address);
    if (address.isEmpty()) {
        m_reason = QStringLiteral("no session bus");
    } else if (!name.isEmpty()) {
        open(name);
    }
}

BusProbe::~BusProbe()
{
    m_notifier.reset();
    if (m_socket >= 0) {
        ::close(m_socket);
    }
}

bool BusProbe::waitForAnswer(int milliseconds) const
{
    if (m_socket < 0) {
        return m_reason.isEmpty();
    }
    pollfd waiting = {m_socket, POLLIN, 0};
    return ::poll(&waiting, 1, milliseconds) > 0;
}

void BusProbe::listen()
{
    // A notifier needs the event loop of the thread, which may not exist yet.
    QMetaObject::invokeMethod(this, "startListening", Qt::QueuedConnection);
}

void BusProbe::startListening()
{
    if (m_socket < 0) {
        Q_EMIT answered(); // cannot be probed: let the owner try it
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_socket, QSocketNotifier::Read);
    checkConnection(m_reporter, connect(m_notifier.get(), SIGNAL(activated(int)), this, SLOT(onReadable())),
                    "void zel::host::BusProbe::startListening()", "QSocketNotifier::activated()");
}

void BusProbe::onReadable()
{
    m_notifier->setEnabled(false);
    Q_EMIT answered();
}

void BusProbe::open(const QByteArray& name)
{
    sockaddr_un target = {};
    target.sun_family = AF_UNIX;
    const auto size = static_cast<std::size_t>(name.size());
    if (size > sizeof(target.sun_path)) {
        m_reason = QStringLiteral("the address of the session bus is too long");
        return;
    }
    std::copy(name.begin(), name.end(), &target.sun_path[0]);
    m_socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + size);
    static constexpr char word[] = "\0AUTH\r\n"; // asks for the authentication mechanisms
    if (m_socket < 0 || ::connect(m_socket, reinterpret_cast<const sockaddr*>(&target), length) != 0 ||
        ::send(m_socket, &word[0], sizeof(word) - 1, MSG_NOSIGNAL) < 0) {
        m_reason = QStringLiteral("no session bus: ") + qt_error_string(errno);
    }
}

} // namespace zel::host
