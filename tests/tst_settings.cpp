// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Device settings: how they are read, followed and reported.

#include "bridge/Locale.h"
#include "settings/ClockSetting.h"
#include "settings/PpsManager.h"
#include "settings/RegionNotifier.h"
#include "settings/TimeZoneSetting.h"
#include "support/MessageLog.h"
#include "support/Rows.h"
#include "support/SettingsRoot.h"
#include <memory>
#include <QtCore/QMetaMethod>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>
#include <zel/utility/i18n/ClockFormat.h>

using namespace zel::utility::i18n;

namespace {

constexpr const char* objectPath = "/pps/system/test";
constexpr const char* failedToDecode = "warning: void zel::utility::i18n::PpsManager::onPpsUpdate() failed to decode "
                                       "PPS payload from /pps/system/test ";

const QString object = QString::fromLatin1(objectPath);

// A reader of the attribute "a" of the test object, and its signals.
struct Reader
{
    Reader() : manager(objectPath, "@test", "a", nullptr), changes(&manager, SIGNAL(changed())) {}

    PpsManager manager;
    QSignalSpy changes;
};

} // namespace

class SettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_root.remove(object); }

    void readsAtOnce()
    {
        QVERIFY(m_root.write(object, "@test\na:n:7\nb::text\n"));
        QCOMPARE(Reader().manager.value(), QVariant(7));
    }

    void followsTheObject_data()
    {
        const NamedRow<QByteArray, QVariant, int> row;
        row("another value", "@test\na:n:8\n", 8, 1);
        row("the same value", "@test\na:n:7\nb::new\n", 7, 0);
        row("the attribute goes", "@test\nb::new\n", {}, 1);
        row("the name changes", "@other\na:n:8\n", {}, 1);
        row("text", "@test\na::eight\n", QStringLiteral("eight"), 1);
        row("the same number as text", "@test\na::7\n", 7, 0);
        row("garbage", "garbage", 7, 0);
    }

    void followsTheObject()
    {
        const auto [text, value, changes] = cells<QByteArray, QVariant, int>();
        QVERIFY(m_root.write(object, "@test\na:n:7\n"));
        Reader reader;
        QVERIFY(m_root.write(object, text));
        if (changes > 0) {
            QVERIFY(reader.changes.wait(2000));
        }
        QTest::qWait(changes > 0 ? 50 : 300);
        QCOMPARE(reader.changes.count(), changes);
        QCOMPARE(reader.manager.value(), value);
    }

    void objectThatCannotBeOpened()
    {
        QVERIFY(QDir().mkpath(m_root.file(object)));
        MessageLog log;
        {
            Reader reader;
            const QStringList messages = log.take();
            QCOMPARE(messages.size(), 1);
            QVERIFY2(messages.first().startsWith(QLatin1String(
                         "critical: zel::utility::i18n::PpsManager::PpsManager(const char*, const char*, const char*, "
                         "QObject*) failed to open PPS at /pps/system/test  :  \"")) &&
                         messages.first().endsWith(QLatin1String("\" ")),
                     qPrintable(messages.first()));
            QVERIFY(!reader.manager.value().isValid());
            QVERIFY(QMetaObject::invokeMethod(&reader.manager, "onPpsUpdate"));
            QCOMPARE(log.take(),
                     QStringList{QStringLiteral("critical: void zel::utility::i18n::PpsManager::onPpsUpdate() "
                                                "called without a PpsObject ")});
        }
        QVERIFY(QDir().rmdir(m_root.file(object)));
    }

    void failureToOpenPasses_data()
    {
        const NamedRow<bool> row;
        row("asked", true);
        row("announced", false);
    }

    void failureToOpenPasses()
    {
        const auto [asked] = cells<bool>();
        QVERIFY(m_root.write(object, "@test\na:n:7\n"));
        Reader reader;
        QTest::qWait(100);
        QVERIFY(m_root.write(object, "@test\na:n:8\n"));
        QTest::qSleep(50);
        MessageLog log;
        const int next = ::dup(STDIN_FILENO);
        ::close(next);
        rlimit before = {};
        QCOMPARE(::getrlimit(RLIMIT_NOFILE, &before), 0);
        const rlimit none = {static_cast<rlim_t>(next), before.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &none), 0);
        asked ? static_cast<void>(reader.manager.refresh()) : QTest::qWait(100);
        const QStringList messages = log.take();
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &before), 0);
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages.first().contains(QLatin1String("Too many open files")), qPrintable(messages.first()));
        QVERIFY(asked ? reader.manager.refresh() : reader.changes.wait());
        QCOMPARE(reader.manager.value(), QVariant(8));
    }

    void clockIsTwelveOrTwentyFour_data()
    {
        const NamedRow<QByteArray, int, bool> row;
        row("24", "hourFormat:n:24", 24, true);
        row("12", "hourFormat:n:12", 12, true);
        row("24 as text", "hourFormat::24", 24, true);
        row("13", "hourFormat:n:13", 12, false);
        row("0", "hourFormat:n:0", 12, false);
        row("a word", "hourFormat::late", 12, false);
        row("not set", "other:n:24", 12, true);
    }

    void clockIsTwelveOrTwentyFour()
    {
        const auto [attribute, hours, known] = cells<QByteArray, int, bool>();
        // Each row starts from another value, so that there is a change to wait for.
        ClockSetting::clockFormat();
        ClockSetting setting(nullptr);
        QSignalSpy changes(&setting, SIGNAL(changed()));
        QVERIFY(m_root.write("/pps/system/settings", "@settings\n" + attribute + '\n'));
        QVERIFY(changes.wait(2000));
        MessageLog log;
        QCOMPARE(static_cast<int>(ClockSetting::clockFormat()), hours);
        ClockSetting::clockFormat();
        const QString complaint = QStringLiteral(
            "critical: zel::utility::i18n::ClockSetting::onPpsUpdate encountered unknown ClockFormat in PPS ");
        QCOMPARE(log.take(), known ? QStringList() : QStringList({complaint, complaint}));
    }

    // By queries: no event loop runs meanwhile.
    void brokenClockIsReportedOnce()
    {
        const QString settings = QStringLiteral("/pps/system/settings");
        QVERIFY(m_root.setClock("24"));
        QCOMPARE(ClockSetting::clockFormat(), ClockFormat::Use24hourClock);
        MessageLog log;
        QVERIFY(m_root.rewrite(settings, "@sett"));
        QCOMPARE(ClockSetting::clockFormat(), ClockFormat::Use24hourClock);
        QCOMPARE(log.take(), QStringList()); // it may be half written
        QTest::qSleep(50);
        QCOMPARE(ClockSetting::clockFormat(), ClockFormat::Use24hourClock);
        QVERIFY(m_root.rewrite(settings, "@sett"));
        QTest::qSleep(50);
        ClockSetting::clockFormat();
        QCOMPARE(log.take(), {QString::fromLatin1(failedToDecode).replace(object, settings)});
    }

    void manyClocksShareOneReader()
    {
        QVERIFY(m_root.setClock("12"));
        QTRY_COMPARE(ClockSetting::clockFormat(), ClockFormat::Use12hourClock);
        QTest::qWait(100);
        const QDir descriptors(QStringLiteral("/proc/self/fd"));
        const auto before = descriptors.entryList(QDir::AllEntries | QDir::System);
        std::vector<std::unique_ptr<ClockSetting>> settings;
        std::vector<std::unique_ptr<QSignalSpy>> spies;
        for (int i = 0; i < 1000; ++i) {
            settings.push_back(std::make_unique<ClockSetting>(nullptr));
            spies.push_back(std::make_unique<QSignalSpy>(settings.back().get(), SIGNAL(changed())));
        }
        QVERIFY(m_root.setClock("24"));
        QVERIFY(spies.back()->wait(2000));
        QCOMPARE(QDir(descriptors.path()).entryList(QDir::AllEntries | QDir::System), before);
        for (const auto& spy : spies) {
            QCOMPARE(spy->count(), 1);
        }
    }

    void timeZoneIsUnchecked()
    {
        MessageLog log;
        QVERIFY(TimeZoneSetting::timeZone().isEmpty());
        TimeZoneSetting setting(nullptr);
        QSignalSpy changes(&setting, SIGNAL(changed()));
        QVERIFY(m_root.setTimeZone("Nowhere/Atlantis"));
        QVERIFY(changes.wait(2000));
        QCOMPARE(TimeZoneSetting::timeZone(), QStringLiteral("Nowhere/Atlantis"));
        QCOMPARE(log.take().size(), 1); // of the object that was missing at first
    }

    void regionNotifierCallsUntilDestroyed()
    {
        QVERIFY(m_root.setRegion("de_DE"));
        QObject receiver;
        QSignalSpy calls(&receiver, SIGNAL(destroyed()));
        {
            const RegionNotifier notifier(&receiver, SIGNAL(destroyed()), nullptr);
            for (const char* const region : {"de_CH", "de_AT"}) {
                QVERIFY(m_root.setRegion(region));
                QVERIFY(calls.wait(2000));
            }
        }
        QVERIFY(m_root.setRegion("de_LU"));
        QTest::qWait(200);
        QCOMPARE(calls.count(), 2);
    }

    void enumerationIsReadByName()
    {
        const QMetaObject& meta = ClockFormat::staticMetaObject;
        QCOMPARE(meta.className(), "zel::utility::i18n::ClockFormat");
        QCOMPARE(meta.enumeratorCount(), 1);
        QCOMPARE(meta.enumerator(0).keyToValue("ApplyLocaleFormat"), 2);
        const QMetaMethod changed =
            ClockSetting::staticMetaObject.method(ClockSetting::staticMetaObject.methodOffset());
        QCOMPARE(changed.methodSignature(), QByteArray("changed()"));
        QCOMPARE(changed.access(), QMetaMethod::Protected);
    }

private:
    SettingsRoot m_root;
};

QTEST_GUILESS_MAIN(SettingsTest)
#include "tst_settings.moc"
