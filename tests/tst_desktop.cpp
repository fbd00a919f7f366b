// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// The desktop build on a private message bus, with working and failing settings portals.

#include "bridge/Locale.h"
#include "host/TimeZone.h"
#include "settings/ClockSetting.h"
#include "settings/HostReporter.h"
#include "settings/RegionNotifier.h"
#include "support/Child.h"
#include "support/MessageLog.h"
#include "support/Rows.h"
#include <cstdio>
#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QSemaphore>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>
#include <zel/host/Settings.h>
#include <zel/utility/i18n/CustomDateFormatter.h>

using namespace zel::utility::i18n;

namespace {

const QString afternoon = QString::fromUtf8("3:05\u202FPM");

// A message bus in a temporary directory, put into the environment as the session bus.
class Bus
{
public:
    Bus()
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", QFile::encodeName(address()));
        // The bus can start only the services in this directory.
        QFile config(m_directory.filePath("conf"));
        m_isReady =
            config.open(QIODevice::WriteOnly) &&
            config.write(QStringLiteral("<busconfig><type>session</type><listen>%1</listen>"
                                        "<servicedir>%2</servicedir><policy context='default'>"
                                        "<allow send_destination='*' eavesdrop='true'/><allow eavesdrop='true'/>"
                                        "<allow own='*'/></policy></busconfig>")
                             .arg(address(), m_directory.path())
                             .toUtf8()) > 0;
        config.close();
        start();
    }

    bool isReady() const { return m_isReady; }
    void start()
    {
        m_daemon =
            std::make_unique<Child>(QStringLiteral("dbus-daemon"),
                                    QStringList{QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                                                QStringLiteral("--config-file=") + m_directory.filePath("conf")});
        m_isReady = m_isReady && m_daemon->line().startsWith(QLatin1String("unix:path="));
    }
    void stop()
    {
        m_daemon->stop();
        QFile::remove(m_directory.filePath("bus"));
    }
    // Announces the bus through the "runtime" directory, or by an address of "another" kind.
    void hide(const QString& place) const
    {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_directory.path()));
        qputenv("DBUS_SESSION_BUS_ADDRESS", place == QLatin1String("runtime")
                                                ? QByteArray()
                                                : QFile::encodeName("tcp:host=localhost,port=1;" + address()));
    }

    // Starts a portal of the "new" or "old" version, or lets the bus start one: "starting", "activated".
    bool startPortal(const QString& kind, const QString& value)
    {
        if (kind == QLatin1String("starting") || kind == QLatin1String("activated")) {
            QString program = QStringLiteral("/bin/sleep 3");
            if (kind == QLatin1String("activated")) {
                program =
                    QStringLiteral("/bin/sh -c 'sleep 5 | %1 new %2'").arg(QStringLiteral(ZEL_FAKE_PORTAL), value);
            }
            QFile file(m_directory.filePath("portal.service"));
            return file.open(QIODevice::WriteOnly) &&
                   file.write("[D-BUS Service]\nName=org.freedesktop.portal.Desktop\nExec=" + program.toUtf8() + '\n') >
                       0;
        }
        m_portal = std::make_unique<Child>(QStringLiteral(ZEL_FAKE_PORTAL), QStringList{kind, value});
        return m_portal->line() == QLatin1String("ready");
    }
    Child& portal() { return *m_portal; }

private:
    QString address() const { return QStringLiteral("unix:path=") + m_directory.filePath("bus"); }

    QTemporaryDir m_directory;
    bool m_isReady = false;
    std::unique_ptr<Child> m_daemon;
    std::unique_ptr<Child> m_portal;
};

// A bus that accepts connections and never answers.
class SilentBus
{
public:
    SilentBus()
    {
        const QByteArray path = QFile::encodeName(m_directory.filePath("bus"));
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        std::copy(path.begin(), path.end(), &address.sun_path[0]);
        m_isReady = ::bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0 &&
                    ::listen(m_socket, 5) == 0;
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path);
    }
    ~SilentBus() { ::close(m_socket); }
    Q_DISABLE_COPY_MOVE(SilentBus)

    bool isReady() const { return m_isReady; }

private:
    QTemporaryDir m_directory;
    int m_socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    bool m_isReady = false;
};

QStringList fallback(const QString& fault)
{
    return {QStringLiteral(
                "warning: void zel::host::Clock::onAnswer() uses the clock of the region's time pattern : \"%1\" ")
                .arg(fault)};
}

// Creates a clock and returns how many milliseconds that took.
qint64 makeClock(std::unique_ptr<zel::host::Setting>& clock)
{
    QElapsedTimer timer;
    timer.start();
    clock = zel::host::clock(&reportOfHost);
    return timer.elapsed();
}

constexpr qint64 longestWait = 100;

} // namespace

class DesktopTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { qputenv("LC_ALL", "de_DE.UTF-8"); }

    void readsThePortal_data()
    {
        const NamedRow<QString, QString, QByteArray, int, QStringList> row;
        const QStringList unknown = fallback(QStringLiteral("the settings portal has an unknown clock format"));
        const QStringList silent = fallback(QStringLiteral("the settings portal does not answer"));
        row("12 hours", "new", "12h", "de_DE", 12, {});
        row("24 hours", "new", "24h", "en_US", 24, {});
        row("12 hours, asked the old way", "old", "12h", "de_DE", 12, {});
        row("24 hours, asked the old way", "old", "24h", "en_US", 24, {});
        row("another text", "new", "13h", "de_DE", 24, unknown);
        row("a number", "new", "a number", "en_US", 12, unknown);
        row("silence", "new", "silence", "en_US", 12, silent);
        row("starting", "starting", "", "de_DE", 24, fallback(QStringLiteral("the settings portal is starting")));
        row("none", "", "", "de_DE", 24, fallback(QStringLiteral("the settings portal is not installed")));
        row("no such setting", "new", "nothing", "de_DE", 24,
            fallback(QStringLiteral("the settings portal does not have the setting")));
        row("silence, asked the old way", "old", "silence", "de_DE", 24, silent);
    }

    void readsThePortal()
    {
        const auto [kind, value, region, hours, messages] = cells<QString, QString, QByteArray, int, QStringList>();
        Bus bus;
        QVERIFY(bus.isReady() && (kind.isEmpty() || bus.startPortal(kind, value)));
        qputenv("LC_ALL", region);
        MessageLog log;
        std::unique_ptr<zel::host::Setting> clock;
        const qint64 waited = makeClock(clock);
        QCOMPARE(clock->value().toInt(), hours);
        QCOMPARE(log.take(), messages);
        QVERIFY2(waited <= longestWait, qPrintable(QString::number(waited)));
    }

    void worksWithoutBus_data()
    {
        const NamedRow<bool, QByteArray, QString> row;
        row("no bus", false, {}, "no session bus");
        row("nobody there", false, "unix:path=/nowhere/bus", "no session bus: No such file or directory");
        row("a silent bus", true, {}, "the session bus does not answer");
    }

    void worksWithoutBus()
    {
        const auto [silent, address, fault] = cells<bool, QByteArray, QString>();
        const SilentBus silentBus;
        QVERIFY(silentBus.isReady());
        qputenv("XDG_RUNTIME_DIR", "/nowhere");
        if (!silent) {
            qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        }
        MessageLog log;
        std::unique_ptr<zel::host::Setting> clock;
        const qint64 waited = makeClock(clock);
        QCOMPARE(clock->value(), QVariant(24));
        qputenv("LC_ALL", "en_US.UTF-8");
        QCOMPARE(clock->value(), QVariant(12));
        QVERIFY(clock->source().contains(fault));
        QSignalSpy changes(clock.get(), SIGNAL(changed()));
        QEvent change(QEvent::LocaleChange);
        QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
        QVERIFY(QMetaObject::invokeMethod(clock.get(), "onAnswer", Q_ARG(QVariant, QVariant()), Q_ARG(QString, fault)));
        QCOMPARE(changes.size(), 2);
        QCOMPARE(log.take(), fallback(fault)); // once
        QVERIFY2(waited <= longestWait, qPrintable(QString::number(waited)));
    }

    void watchFollows_data()
    {
        // The event, and the clock that a program then shows.
        const NamedRow<QString> row;
        row("changes", "portal new 24h|watch=24|set 12h=12|set 24h=24|set 12h=12");
        row("the portal starts again", "portal new 12h|watch=12|stop portal=24|portal new 12h=12|set 24h=24");
        row("the bus starts the portal", "portal new 12h|watch=12|portal activated 12h|stop portal=24|wait=12");
        row("the portal starts late", "watch=24|portal new 12h=12|set 24h=24");
        row("a late answer", "portal new late 12h|watch=24|wait=12");
        row("the older question", "portal old 12h|watch=12|set 24h=24|stop portal|portal old 12h=12");
        row("the bus starts again", "portal new 12h|watch=12|stop bus=24|start bus|portal new 12h=12|set 24h=24");
        row("the bus starts late", "hide runtime|stop bus|watch=24|start bus|portal new 12h=12");
        row("a bus elsewhere starts again",
            "hide another|portal new 12h|watch=12|stop bus=24|start bus|portal new 12h=12");
    }

    void watchFollows()
    {
        const auto [steps] = cells<QString>();
        Bus bus;
        QVERIFY(bus.isReady());
        std::unique_ptr<Child> watch;
        QByteArray losses;
        const auto lose = [&](const char* what) {
            if (watch) {
                losses += fallback(QStringLiteral("the %1 has gone").arg(QLatin1String(what)))
                              .first()
                              .replace(QLatin1String("warning"), QLatin1String("zel-i18n"))
                              .trimmed()
                              .toUtf8() +
                          '\n';
            }
        };
        for (const QString& step : steps.split('|')) {
            const QString action = step.section(QLatin1Char('='), 0, 0);
            if (action.startsWith(QLatin1String("portal "))) {
                QVERIFY(bus.startPortal(action.section(QLatin1Char(' '), 1, 1), action.section(QLatin1Char(' '), 2)));
            } else if (action == QLatin1String("watch")) {
                watch =
                    std::make_unique<Child>(QStringLiteral(ZEL_TOOL), QStringList{action, QStringLiteral("hm"),
                                                                                  QStringLiteral("2012-05-16T15:05")});
            } else if (action.startsWith(QLatin1String("set "))) {
                bus.portal().feed(action.mid(4).toLatin1() + '\n');
            } else if (action.startsWith(QLatin1String("hide "))) {
                bus.hide(action.mid(5));
            } else if (action == QLatin1String("stop portal")) {
                bus.portal().stop();
                lose("settings portal");
            } else if (action == QLatin1String("stop bus")) {
                bus.stop();
                lose("session bus");
            } else if (action == QLatin1String("start bus")) {
                bus.start();
            }
            const QString clock = step.section(QLatin1Char('='), 1);
            if (!clock.isEmpty()) {
                const QString expected = clock == QLatin1String("12") ? afternoon : QStringLiteral("15:05");
                const QString line = watch->line();
                // On a busy machine the first answer may be late.
                QCOMPARE(action == QLatin1String("watch") && line != expected ? watch->line() : line, expected);
            }
        }
        QCOMPARE(watch->errors(), losses); // it receives changes and does not poll
    }

    void followsOnEveryThread()
    {
        Bus bus;
        QVERIFY(bus.isReady() && bus.startPortal("new", QStringLiteral("24h")));
        std::thread([] { ClockSetting::clockFormat(); }).join(); // the thread of the first query is gone
        QSemaphore isMade;
        QString text;
        const std::unique_ptr<QThread> thread(QThread::create([&] {
            const CustomDateFormatter formatter(QStringLiteral("hm"));
            isMade.release();
            const QDeadlineTimer deadline(10000);
            while (text != afternoon && !deadline.hasExpired()) {
                QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
                text = formatter.format(QDateTime(QDate(2012, 5, 16), QTime(15, 5)));
            }
        }));
        thread->start();
        isMade.acquire();
        bus.portal().feed("12h\n");
        QVERIFY(thread->wait()); // without an event loop here
        QCOMPARE(text, afternoon);
        // A thread that cannot reach the bus does not remove the value.
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
        std::thread([] {
            const CustomDateFormatter formatter(QStringLiteral("hm"));
            QCoreApplication::sendPostedEvents();
        }).join();
        QCOMPARE(ClockSetting::clockFormat(), ClockFormat::Use12hourClock);
        bus.portal().feed("24h\n");
        QTRY_COMPARE(ClockSetting::clockFormat(), ClockFormat::Use24hourClock); // with one, and without a formatter
    }

    void watchFollowsTheTimeZone()
    {
        const QTemporaryDir etc;
        const QString link = etc.filePath("localtime");
        QVERIFY(QFile::link(QStringLiteral("/usr/share/zoneinfo/Asia/Tokyo"), link));
        qunsetenv("TZ");
        // In a private mount namespace with this directory as /etc.
        const QString script = QStringLiteral("mount --bind %1 /etc && exec %2 watch hmz 2012-05-16T14:30Z");
        Child watch(QStringLiteral("unshare"), {QStringLiteral("-rm"), QStringLiteral("sh"), QStringLiteral("-c"),
                                                script.arg(etc.path(), QStringLiteral(ZEL_TOOL))});
        const QString text = watch.line();
        if (text.isEmpty() && watch.errors().contains("unshare")) {
            QSKIP("mount namespaces are not permitted here");
        }
        QCOMPARE(text, QStringLiteral("23:30 GMT+9"));
        const QString next = etc.filePath("next");
        QVERIFY(QFile::link(QStringLiteral("/usr/share/zoneinfo/Europe/Berlin"), next));
        QCOMPARE(std::rename(QFile::encodeName(next).constData(), QFile::encodeName(link).constData()), 0);
        QCOMPARE(watch.line(), QStringLiteral("16:30 MESZ"));
    }

    void regionOfTheEnvironment_data()
    {
        const Row<QByteArray, QByteArray, QByteArray, QLocale> row;
        row("de_DE", "fr_FR", "ja_JP", QLocale("de_DE"));
        row("", "fr_FR.UTF-8", "ja_JP", QLocale("fr_FR"));
        row("", "", "ja_JP.eucJP", QLocale("ja_JP"));
        row("de_DE.UTF-8@euro", "", "", QLocale("de_DE"));
        row("sr_RS@latin", "", "", QLocale("sr_Latn_RS"));
        row("C.UTF-8", "fr_FR", "", QLocale::c());
        row("POSIX", "", "", QLocale::c());
        row("", "", "", QLocale::c());
    }

    void regionOfTheEnvironment()
    {
        const auto [all, time, lang, region] = cells<QByteArray, QByteArray, QByteArray, QLocale>();
        qputenv("LC_ALL", all);
        qputenv("LC_TIME", time);
        qputenv("LANG", lang);
        QCOMPARE(Locale::region(), region);
    }

    void reportsLocaleChanges()
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

    void followsTheTimeZone()
    {
        const QTemporaryDir etc;
        const QString link = etc.filePath("localtime");
        const auto replaceLink = [&link](const char* target) {
            QFile::remove(link);
            return QFile::link(QString::fromLatin1(target), link);
        };
        zel::host::TimeZone zone(&reportOfHost, link);
        const std::unique_ptr<QObject> listener = zone.listen();
        QSignalSpy changes(&zone, SIGNAL(changed()));
        QTRY_COMPARE(changes.size(), 1); // it has begun to watch
        qputenv("TZ", "Europe/Berlin");
        QCOMPARE(zone.value(), QVariant(QStringLiteral("Europe/Berlin")));
        qputenv("TZ", ":/usr/share/zoneinfo/Asia/Tokyo");
        QCOMPARE(zone.value(), QVariant(QStringLiteral("Asia/Tokyo")));
        qputenv("TZ", "CET-1CEST");
        QVERIFY(!zone.value().toString().isEmpty());
        qunsetenv("TZ");
        for (const char* const id : {"Asia/Tokyo", "Europe/Paris"}) {
            changes.clear();
            QVERIFY(replaceLink(QByteArray("../usr/share/zoneinfo/").append(id).constData()));
            QCOMPARE(zone.value(), QVariant(QString::fromLatin1(id))); // also without an event loop
            QTRY_VERIFY(!changes.isEmpty());
        }
        // Without a directory to watch
        MessageLog log;
        zel::host::TimeZone nowhere(&reportOfHost, QStringLiteral("/nowhere/localtime"));
        const std::unique_ptr<QObject> poll = nowhere.listen();
        QSignalSpy looks(&nowhere, SIGNAL(changed()));
        QTRY_VERIFY(looks.size() >= 2);
        QCOMPARE(log.take().filter(QStringLiteral("cannot watch the directory")).size(), 1);
        // Through another link, which is replaced
        QVERIFY(replaceLink("zone"));
        for (const QString& id : {QStringLiteral("Asia/Kolkata"), QStringLiteral("Africa/Cairo")}) {
            QFile::remove(etc.filePath("zone"));
            QVERIFY(QFile::link(QStringLiteral("/usr/share/zoneinfo/") + id, etc.filePath("zone")));
            QCOMPARE(zone.value(), QVariant(id));
        }
    }
};

QTEST_GUILESS_MAIN(DesktopTest)
#include "tst_desktop.moc"
