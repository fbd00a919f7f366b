// The desktop build on a message bus of its own, with a settings portal that behaves and others that do not.

#include "bridge/Locale.h"
#include "settings/HostClock.h"
#include "settings/HostTimeZone.h"
#include "settings/RegionNotifier.h"
#include "support/MessageLog.h"
#include <iostream>
#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusContext>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVariant>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <zel/utility/i18n/CustomDateFormatter.h>

using namespace zel::utility::i18n;

/** A settings portal that tells what it is told on its standard input, in a process of its own. */
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
        if (group != QLatin1String("org.gnome.desktop.interface") || key != QLatin1String("clock-format")) {
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

/** A portal of today. */
class NewPortal : public Portal
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    using Portal::Portal;

public Q_SLOTS:
    QDBusVariant ReadOne(const QString& group, const QString& key) { return answer(group, key); }
};

namespace {

const QDateTime moment = QDateTime::fromString(QStringLiteral("2012-05-16T15:05Z"), Qt::ISODate);

/** Runs as a portal until the standard input ends; each line of it is a new value. */
int servePortal(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QString value = QString::fromLatin1(argv[3]);
    const auto portal =
        QByteArray(argv[2]) == "new" ? std::make_unique<NewPortal>(value) : std::make_unique<Portal>(value);
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

/** A child process that is ready when it has written a line. */
class Child
{
public:
    Child(const QString& program, const QStringList& arguments)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(program, arguments);
        m_isReady = m_process.waitForReadyRead(10000) && m_process.readLine().endsWith('\n');
    }
    ~Child() { stop(); }
    Q_DISABLE_COPY(Child)

    bool isReady() const { return m_isReady; }
    void write(const QByteArray& line) { m_process.write(line + '\n'); }
    void stop()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
    bool m_isReady = false;
};

/** A message bus in a temporary directory, put into the environment as the session bus. */
class Bus
{
public:
    Bus()
        : m_daemon(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--session"), QStringLiteral("--nofork"),
                    QStringLiteral("--address=unix:path=") + socket(), QStringLiteral("--print-address")})
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", QFile::encodeName(QStringLiteral("unix:path=") + socket()));
    }

    bool isReady() const { return m_daemon.isReady(); }
    void stop() { m_daemon.stop(); }

private:
    QString socket() const { return m_directory.filePath(QStringLiteral("bus")); }

    QTemporaryDir m_directory;
    Child m_daemon;
};

/** A bus that takes connections and never says a word. */
class SilentBus
{
public:
    SilentBus()
    {
        const QByteArray path = QFile::encodeName(m_directory.filePath(QStringLiteral("bus")));
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        std::copy(path.begin(), path.end(), &address.sun_path[0]);
        m_isReady = ::bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0 &&
                    ::listen(m_socket, 5) == 0;
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path);
    }
    ~SilentBus() { ::close(m_socket); }
    Q_DISABLE_COPY(SilentBus)

    bool isReady() const { return m_isReady; }

private:
    QTemporaryDir m_directory;
    int m_socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    bool m_isReady = false;
};

std::unique_ptr<Child> startPortal(const QString& kind, const QString& value)
{
    return std::make_unique<Child>(QCoreApplication::applicationFilePath(),
                                   QStringList{QStringLiteral("--portal"), kind, value});
}

QStringList fallback(const QString& fault)
{
    return {
        QStringLiteral("warning: void zel::utility::i18n::HostClock::onAnswer() uses the clock of the region's time "
                       "pattern : \"%1\" ")
            .arg(fault)};
}

/** Makes a clock and says for how many milliseconds the caller had to wait for it. */
qint64 makeClock(std::unique_ptr<HostClock>& clock)
{
    QElapsedTimer timer;
    timer.start();
    clock = std::make_unique<HostClock>();
    return timer.elapsed();
}

constexpr qint64 longestWait = 100;

} // namespace

class DesktopTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void asksThePortal_data();
    void asksThePortal();
    void doesWithoutBus_data();
    void doesWithoutBus();
    void takesALateAnswer();
    void followsThePortal();
    void regionOfTheEnvironment_data();
    void regionOfTheEnvironment();
    void tellsOfLocaleChanges();
    void followsTheTimeZone();
};

void DesktopTest::init()
{
    qputenv("LC_ALL", "de_DE.UTF-8");
}

void DesktopTest::asksThePortal_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("region");
    QTest::addColumn<int>("clock");
    QTest::addColumn<QStringList>("messages");
    const auto row = [](const char* name, const char* kind, const char* value, const char* region, int clock,
                        const QStringList& messages = {}) {
        QTest::newRow(name) << QString::fromLatin1(kind) << QString::fromLatin1(value) << QByteArray(region) << clock
                            << messages;
    };
    const QStringList unknown = fallback(QStringLiteral("the settings portal has an unknown clock format"));
    const QStringList silent = fallback(QStringLiteral("the settings portal does not answer"));
    row("12 hours", "new", "12h", "de_DE", 12);
    row("24 hours", "new", "24h", "en_US", 24);
    row("12 hours, asked the old way", "old", "12h", "de_DE", 12);
    row("24 hours, asked the old way", "old", "24h", "en_US", 24);
    row("another text", "new", "13h", "de_DE", 24, unknown);
    row("a number", "new", "a number", "en_US", 12, unknown);
    row("silence", "new", "silence", "en_US", 12, silent);
    row("silence, asked the old way", "old", "silence", "de_DE", 24, silent);
}

void DesktopTest::asksThePortal()
{
    QFETCH(const QString, kind);
    QFETCH(const QString, value);
    QFETCH(const QByteArray, region);
    const Bus bus;
    QVERIFY(bus.isReady());
    const auto portal = startPortal(kind, value);
    QVERIFY(portal->isReady());
    qputenv("LC_ALL", region);
    MessageLog log;
    std::unique_ptr<HostClock> clock;
    const qint64 waited = makeClock(clock);
    QTEST(clock->value().toInt(), "clock");
    QTEST(log.take(), "messages");
    QVERIFY2(waited <= longestWait, qPrintable(QString::number(waited)));
}

void DesktopTest::doesWithoutBus_data()
{
    QTest::addColumn<bool>("silent");
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<QString>("fault");
    QTest::newRow("no bus") << false << QByteArray() << QStringLiteral("no session bus");
    QTest::newRow("nobody there") << false << QByteArray("unix:path=/nowhere/bus")
                                  << QStringLiteral("no session bus: No such file or directory");
    QTest::newRow("a silent bus") << true << QByteArray() << QStringLiteral("the session bus does not answer");
}

void DesktopTest::doesWithoutBus()
{
    QFETCH(const bool, silent);
    QFETCH(const QByteArray, address);
    QFETCH(const QString, fault);
    const SilentBus silentBus;
    QVERIFY(silentBus.isReady());
    qputenv("XDG_RUNTIME_DIR", "/nowhere");
    if (!silent) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    }
    MessageLog log;
    std::unique_ptr<HostClock> clock;
    const qint64 waited = makeClock(clock);
    QCOMPARE(clock->value(), QVariant(24));
    qputenv("LC_ALL", "en_US.UTF-8");
    QCOMPARE(clock->value(), QVariant(12));
    QVERIFY(clock->source().contains(fault));
    QCOMPARE(log.take(), fallback(fault));
    QVERIFY2(waited <= longestWait, qPrintable(QString::number(waited)));
}

void DesktopTest::takesALateAnswer()
{
    const Bus bus;
    const auto portal = startPortal(QStringLiteral("new"), QStringLiteral("late 12h"));
    QVERIFY(bus.isReady() && portal->isReady());
    MessageLog log;
    HostClock clock;
    QSignalSpy changes(&clock, SIGNAL(changed()));
    QCOMPARE(clock.value(), QVariant(24));
    QTRY_COMPARE(clock.value(), QVariant(12));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(clock.source(), QStringLiteral("the settings portal"));
    QCOMPARE(log.take(), fallback(QStringLiteral("the settings portal does not answer")));
}

void DesktopTest::followsThePortal()
{
    Bus bus;
    auto portal = startPortal(QStringLiteral("new"), QStringLiteral("24h"));
    QVERIFY(bus.isReady() && portal->isReady());
    const QString afternoon = QString::fromUtf8("3:05\u202FPM");
    MessageLog log;
    const CustomDateFormatter formatter(QStringLiteral("hm"));
    QCOMPARE(formatter.format(moment), QStringLiteral("15:05"));
    portal->write("12h");
    QTRY_COMPARE(formatter.format(moment), afternoon);
    QCOMPARE(log.take(), QStringList());

    portal->stop();
    QTRY_COMPARE(formatter.format(moment), QStringLiteral("15:05"));
    QCOMPARE(log.take(), fallback(QStringLiteral("the settings portal has gone")));
    portal = startPortal(QStringLiteral("old"), QStringLiteral("12h"));
    QTRY_COMPARE(formatter.format(moment), afternoon);

    bus.stop();
    QTRY_COMPARE(formatter.format(moment), QStringLiteral("15:05"));
    QCOMPARE(log.take(), fallback(QStringLiteral("the session bus has gone")));
}

void DesktopTest::regionOfTheEnvironment_data()
{
    QTest::addColumn<QByteArray>("all");
    QTest::addColumn<QByteArray>("time");
    QTest::addColumn<QByteArray>("lang");
    QTest::addColumn<QLocale>("region");
    const auto row = [](const char* all, const char* time, const char* lang, const QLocale& region) {
        QTest::addRow("%s %s %s", all, time, lang) << QByteArray(all) << QByteArray(time) << QByteArray(lang) << region;
    };
    row("de_DE", "fr_FR", "ja_JP", QLocale(QStringLiteral("de_DE")));
    row("", "fr_FR.UTF-8", "ja_JP", QLocale(QStringLiteral("fr_FR")));
    row("", "", "ja_JP.eucJP", QLocale(QStringLiteral("ja_JP")));
    row("de_DE.UTF-8@euro", "", "", QLocale(QStringLiteral("de_DE")));
    row("sr_RS@latin", "", "", QLocale(QStringLiteral("sr_Latn_RS")));
    row("C.UTF-8", "fr_FR", "", QLocale::c());
    row("POSIX", "", "", QLocale::c());
    row("", "", "", QLocale::c());
}

void DesktopTest::regionOfTheEnvironment()
{
    QFETCH(const QByteArray, all);
    QFETCH(const QByteArray, time);
    QFETCH(const QByteArray, lang);
    qputenv("LC_ALL", all);
    qputenv("LC_TIME", time);
    qputenv("LANG", lang);
    QTEST(Locale::region(), "region");
}

void DesktopTest::tellsOfLocaleChanges()
{
    QTimer receiver;
    receiver.setSingleShot(true);
    receiver.setInterval(60000);
    QEvent change(QEvent::LocaleChange);
    {
        const RegionNotifier notifier(&receiver, SLOT(start()), nullptr);
        QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
        QVERIFY(receiver.isActive());
        receiver.stop();
        QCoreApplication::sendEvent(this, &change);
        QVERIFY(!receiver.isActive());
    }
    QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
    QVERIFY(!receiver.isActive());
}

void DesktopTest::followsTheTimeZone()
{
    const QTemporaryDir etc;
    const QString link = etc.filePath(QStringLiteral("localtime"));
    qputenv("TZ", "Europe/Berlin");
    const HostTimeZone zone(link);
    QSignalSpy changes(&zone, SIGNAL(changed()));
    QTRY_COMPARE(changes.size(), 1); // it has begun to watch
    QCOMPARE(zone.value(), QVariant(QStringLiteral("Europe/Berlin")));
    qputenv("TZ", ":/usr/share/zoneinfo/Asia/Tokyo");
    QCOMPARE(zone.value(), QVariant(QStringLiteral("Asia/Tokyo")));
    QVERIFY(QFile::link(QStringLiteral("/usr/share/zoneinfo/Asia/Tokyo"), link));
    QTRY_COMPARE(changes.size(), 2);
    qputenv("TZ", "CET-1CEST");
    QVERIFY(!zone.value().toString().isEmpty());
}

int main(int argc, char** argv)
{
    if (argc == 4 && QByteArray(argv[1]) == "--portal") {
        return servePortal(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    DesktopTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_desktop.moc"
