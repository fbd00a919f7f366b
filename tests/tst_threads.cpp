// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Formatters on several threads while the device changes, and at the end of a program.

#include "settings/ClockSetting.h"
#include "settings/TimeZoneSetting.h"
#include "support/Child.h"
#include "support/MessageLog.h"
#include "support/Rows.h"
#include "support/SettingsRoot.h"
#include <algorithm>
#include <atomic>
#include <memory>
#include <optional>
#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <thread>
#include <vector>
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/Formatting.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

namespace {

const QDateTime anchor = QDateTime::fromString(QStringLiteral("2012-05-16T15:05Z"), Qt::ISODate);

// The formatters of one thread.
class Formatters
{
public:
    Formatters() { m_relative.setAnchorTime(anchor); }

    // The texts of a thread, which show the device's clock, zone and region.
    QStringList texts()
    {
        // The clock of relative dates is read when their patterns are built.
        m_relative.setClockFormat(ClockFormat::ApplyLocaleFormat);
        m_relative.setClockFormat(ClockFormat::ApplyUserFormat);
        m_relative.applyUserRegionLocale();
        return {m_time.format(anchor), m_zoned.format(anchor), m_relative.format(anchor.addDays(-1)),
                dateFormat(DateFormat::Long)};
    }

private:
    CustomDateFormatter m_time{QStringLiteral("hm")};
    CustomDateFormatter m_zoned{QStringLiteral("yMMMdhmz")};
    RelativeDateFormatter m_relative{RelativeDateFormat::TimeCritical};
};

const QStringList finalTexts{QStringLiteral("15:05"), QStringLiteral("17. Mai 2012, 00:05 GMT+9"),
                             QStringLiteral("gestern, 15:05"), QStringLiteral("d. MMMM yyyy")};

// A thread with an event loop that formats until it shows the device's last settings or times out.
class Worker
{
public:
    explicit Worker(const std::atomic<bool>& settled) : m_thread([this, &settled] { run(settled); }) {}
    ~Worker() { m_thread.join(); }
    Q_DISABLE_COPY_MOVE(Worker)

    bool isDone() const { return m_done; }
    // Valid when it is done.
    QStringList texts() const { return m_texts; }

private:
    void run(const std::atomic<bool>& settled)
    {
        QEventLoop events;
        Formatters formatters;
        QElapsedTimer sinceSettled;
        while (!sinceSettled.isValid() || (m_texts != finalTexts && !sinceSettled.hasExpired(10000))) {
            if (settled && !sinceSettled.isValid()) {
                sinceSettled.start();
            }
            events.processEvents();
            m_texts = formatters.texts();
        }
        m_done = true;
    }

    QStringList m_texts;
    std::atomic<bool> m_done{false};
    std::thread m_thread;
};

// Changes the settings of the device a thousand times, the last time to those of Germany.
void flip(const SettingsRoot& root, bool onlyClock, std::atomic<bool>& settled)
{
    constexpr int flips = 1000;
    for (int i = 0; i < flips; ++i) {
        root.setClock(i % 2 == 0 ? "12" : "24");
        if (!onlyClock && i % 10 == 0) {
            root.setRegion(i % 20 == 0 ? "ja_JP" : "ar_EG");
            root.setTimeZone(i % 20 == 0 ? "Europe/Berlin" : "Africa/Cairo");
        }
    }
    root.setRegion("de_DE");
    root.setTimeZone("Asia/Tokyo");
    root.setClock("24");
    settled = true;
}

// Programs that end in different ways, each run in a separate process.

std::optional<CustomDateFormatter> outlivingFormatter;

void formatSomething(const CustomDateFormatter& formatter)
{
    formatter.format(anchor);
    RelativeDateFormatter(RelativeDateFormat::TimeCritical).format(anchor);
    timeFormat(DateFormat::Short);
}

struct LastWords
{
    ~LastWords() { formatSomething(CustomDateFormatter("hmz")); }
};

QString clockText()
{
    return CustomDateFormatter("hm").format(anchor);
}

struct Program
{
    const char* name;
    void (*run)(int argc, char** argv);
};

constexpr Program programs[] = {
    {"last formatter before the application object",
     [](int argc, char** argv) {
         const QCoreApplication application(argc, argv);
         formatSomething(CustomDateFormatter("hmz"));
     }},
    {"last formatter after the application object",
     [](int argc, char** argv) {
         const QCoreApplication application(argc, argv);
         formatSomething(outlivingFormatter.emplace("hmz"));
     }},
    {"first formatter before the application object",
     [](int argc, char** argv) {
         formatSomething(outlivingFormatter.emplace("hmz"));
         const QCoreApplication application(argc, argv);
         QCoreApplication::processEvents();
     }},
    {"first formatter on a thread that ends",
     [](int argc, char** argv) {
         const QCoreApplication application(argc, argv);
         std::thread([] { formatSomething(CustomDateFormatter("hmz")); }).join();
         formatSomething(CustomDateFormatter("hmz"));
     }},
    {"formats when static objects are destroyed",
     [](int /*argc*/, char** /*argv*/) {
         static const LastWords lastWords;
         formatSomething(CustomDateFormatter("hmz"));
     }},
    // The thread of the first query is gone, with its event loop.
    {"follows when the thread that asked first has ended",
     [](int argc, char** argv) {
         const QCoreApplication application(argc, argv);
         const SettingsRoot root;
         root.setClock("24");
         std::thread([] { clockText(); }).join();
         const CustomDateFormatter formatter("hm");
         QTest::qWait(100);
         root.setClock("12");
         QString withoutLoop;
         std::thread([&withoutLoop] { withoutLoop = clockText(); }).join();
         const bool followed = QTest::qWaitFor([&formatter] { return formatter.format(anchor) == clockText(); });
         if (!followed || withoutLoop == QLatin1String("15:05")) {
             qWarning("deaf");
         }
     }},
    // The events of the first event loop are lost, and the second loop is gone, too.
    {"follows in the next application object",
     [](int argc, char** argv) {
         const SettingsRoot root;
         root.setClock("24");
         for (const char* const clock : {"", "12", "24"}) {
             const QCoreApplication application(argc, argv);
             const ClockSetting setting(nullptr);
             QSignalSpy changes(&setting, SIGNAL(changed()));
             if (*clock != '\0') {
                 QTest::qWait(100);
                 root.setClock(clock);
                 if (!changes.wait()) {
                     qWarning("deaf");
                 }
             }
         }
     }},
    // The object is missing; the first query reports it while another thread queries, too.
    {"message handler waits for a thread that asks", [](int argc, char** argv) {
         const QCoreApplication application(argc, argv);
         const SettingsRoot root;
         qInstallMessageHandler(
             [](QtMsgType, const QMessageLogContext&, const QString&) { std::thread(clockText).join(); });
         clockText();
         root.write("/pps/system/settings", "garbage");
         QTest::qSleep(100);
         clockText();
     }}};

} // namespace

class ThreadsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followTheDevice_data()
    {
        const NamedRow<int, bool> row;
        row("two threads, the clock", 2, true);
        row("eight threads, clock, zone and region", 8, false);
    }

    void followTheDevice()
    {
        const auto [threads, onlyClock] = cells<int, bool>();
        static const SettingsRoot root;
        root.setRegion("de_DE");
        root.setTimeZone("Asia/Tokyo");
        root.setClock("24");
        MessageLog log;
        QCOMPARE(ClockSetting::clockFormat(), ClockFormat::Use24hourClock);
        QCOMPARE(TimeZoneSetting::timeZone(), QStringLiteral("Asia/Tokyo"));

        std::atomic<bool> settled{false};
        std::vector<std::unique_ptr<Worker>> workers;
        std::generate_n(std::back_inserter(workers), threads, [&settled] { return std::make_unique<Worker>(settled); });
        std::thread device(flip, std::cref(root), onlyClock, std::ref(settled));
        const bool done = QTest::qWaitFor(
            [&workers] {
                return std::all_of(workers.cbegin(), workers.cend(),
                                   [](const auto& worker) { return worker->isDone(); });
            },
            240000);
        device.join();

        QVERIFY(done);
        for (const auto& worker : workers) {
            QCOMPARE(worker->texts(), finalTexts);
        }
        QCOMPARE(log.take(), QStringList());
    }

    void endsWithoutMessages_data()
    {
        QTest::addColumn<QString>("program");
        for (const Program& program : programs) {
            QTest::newRow(program.name) << QString::fromLatin1(program.name);
        }
    }

    void endsWithoutMessages()
    {
        QFETCH(const QString, program);
        const SettingsRoot root;
        QVERIFY(root.setClock("24") && root.setTimeZone("Asia/Tokyo") && root.setRegion("de_DE"));
        const Child::Result result =
            Child(QCoreApplication::applicationFilePath(), {QStringLiteral("--end"), program}).finish();
        QCOMPARE(result.errors, QString());
        QCOMPARE(result.status, 0);
    }
};

int main(int argc, char** argv)
{
    if (argc == 3 && QByteArray(argv[1]) == "--end") {
        const auto* const program =
            std::find_if(std::begin(programs), std::end(programs),
                         [&argv](const Program& each) { return QByteArray(argv[2]) == each.name; });
        program->run(argc, argv);
        return 0;
    }
    const QCoreApplication application(argc, argv);
    ThreadsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_threads.moc"
