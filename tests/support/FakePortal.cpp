// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// A settings portal for tests, a separate program: FakePortal new|old VALUE

#include <iostream>
#include <memory>
#include <QtCore/QCoreApplication>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusContext>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVariant>
#include <string>
#include <unistd.h>

// A portal with version 1 of the interface: only "Read".
class Portal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit Portal(const QString& value) : m_value(value) {}

    void change(const QString& value)
    {
        m_value = value;
        Q_EMIT SettingChanged(QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("clock-format"),
                              QDBusVariant(value));
    }

public Q_SLOTS:
    QDBusVariant Read(const QString& group, const QString& key)
    {
        return QDBusVariant(QVariant::fromValue(answer(group, key)));
    }

Q_SIGNALS:
    // NOLINTNEXTLINE(readability-identifier-naming): the name on the bus
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

protected:
    QDBusVariant answer(const QString& group, const QString& key)
    {
        if (group != QLatin1String("org.gnome.desktop.interface") || key != QLatin1String("clock-format") ||
            m_value == QLatin1String("nothing")) {
            sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"), QStringLiteral("no such setting"));
        }
        if (m_value == QLatin1String("silence")) {
            setDelayedReply(true);
        }
        if (m_value == QLatin1String("late 12h")) {
            setDelayedReply(true);
            const QDBusMessage reply = message().createReply(QVariant::fromValue(QDBusVariant(QStringLiteral("12h"))));
            const QDBusConnection bus = connection();
            QTimer::singleShot(300, this, [bus, reply] { bus.send(reply); });
        }
        return m_value == QLatin1String("a number") ? QDBusVariant(24) : QDBusVariant(m_value);
    }

private:
    QString m_value;
};

// A portal with version 2 of the interface.
class NewPortal : public Portal
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    using Portal::Portal;

public Q_SLOTS:
    QDBusVariant ReadOne(const QString& group, const QString& key) { return answer(group, key); }
};

// Runs as a portal until standard input ends; each line is a new value.
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QString value = QString::fromLatin1(argv[2]);
    const auto portal =
        QByteArray(argv[1]) == "new" ? std::make_unique<NewPortal>(value) : std::make_unique<Portal>(value);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), portal.get(),
                            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals) ||
        !bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"))) {
        return 1;
    }
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, portal.get(), [&portal] {
        std::string line;
        if (std::getline(std::cin, line)) {
            portal->change(QString::fromStdString(line));
        } else {
            QCoreApplication::quit();
        }
    });
    std::cout << "ready" << std::endl;
    return QCoreApplication::exec();
}

#include "FakePortal.moc"
