// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// The two formatter classes as an application sees them. Expectations hold for ICU 72.

#include "formatters/CustomDateFormatter_p.h"
#include "settings/ClockSetting.h"
#include "settings/TimeZoneSetting.h"
#include "support/MessageLog.h"
#include "support/Rows.h"
#include "support/SettingsRoot.h"
#include "support/ZoneName.h"
#include <memory>
#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtCore/QRegularExpression>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

namespace {

QDateTime at(const char* iso)
{
    return QDateTime::fromString(QString::fromLatin1(iso), Qt::ISODateWithMs);
}

// The methods declared by the class, as "kind access signature return-type".
QStringList methodsOf(const QMetaObject& meta)
{
    static const char* const kinds[] = {"method", "signal", "slot"};
    static const char* const accesses[] = {"private", "protected", "public"};
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        methods.append(QStringLiteral("%1 %2 %3 %4")
                           .arg(kinds[method.methodType()], accesses[method.access()],
                                QString::fromLatin1(method.methodSignature()), method.typeName()));
    }
    return methods;
}

} // namespace

class FormattersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QVERIFY(m_root.setRegion("en_US"));
        QVERIFY(setTimeZone("Europe/Berlin"));
        QVERIFY(setClock(12));
    }

    void metaObjects()
    {
        QCOMPARE(methodsOf(CustomDateFormatter::staticMetaObject),
                 (QStringList{"slot public setSkeleton(QString) void", "method public isValid() bool",
                              "method public format(QDateTime) QString"}));
        QCOMPARE(methodsOf(CustomDateFormatterPrivate::staticMetaObject),
                 QStringList{"slot private onClockFormatChange() void"});
        QCOMPARE(methodsOf(RelativeDateFormatter::staticMetaObject),
                 (QStringList{"signal protected changed() void", "slot public setAnchorTime(QDateTime) void",
                              "slot public applyCurrentTimeAsAnchor() void", "slot public applyUserRegionLocale() void",
                              "slot public setClockFormat(zel::utility::i18n::ClockFormat::Type) void",
                              "slot protected setClockFormat(int) void", "method public format(QDateTime) QString"}));
        CustomDateFormatter custom("y");
        QVERIFY(custom.setProperty("skeleton", "yMMMd"));
        QString text;
        QVERIFY(QMetaObject::invokeMethod(&custom, "format", Q_RETURN_ARG(QString, text),
                                          Q_ARG(QDateTime, at("2012-05-16T10:30:00"))));
        QCOMPARE(text, QStringLiteral("May 16, 2012"));
        RelativeDateFormatter relative(RelativeDateFormat::TimeCritical);
        const QMetaObject& meta = *relative.metaObject();
        const QMetaProperty type = meta.property(meta.indexOfProperty("type"));
        QCOMPARE(type.typeName(), "zel::utility::i18n::RelativeDateFormat::Type");
        QVERIFY(type.isEnumType() && !type.hasNotifySignal());
        QCOMPARE(type.enumerator().scope(), "zel::utility::i18n::RelativeDateFormat");
        QVERIFY(type.write(&relative, QStringLiteral("NonTimeCritical")));
        QCOMPARE(relative.type(), RelativeDateFormat::NonTimeCritical);
    }

    void skeletons_data()
    {
        const Row<QString, int, QString, QString> row;
        row("en_US", 12, "yMMMd", "May 16, 2012");
        row("en_US", 12, "Hm", "3:05\u202FPM");
        row("en_US", 24, "hm", "15:05");
        row("en_US", 24, "jmm", "3:05\u202FPM");
        row("en_US", 24, "km", "15:05");
        row("de_DE", 24, "EEEEdMMMMhm", "Mittwoch, 16. Mai um 15:05");
        row("de_DE", 12, "hm", "3:05\u202FPM");
        row("ja_JP", 24, "yMMMEdhm", "2012年5月16日(水) 15:05");
        row("ar_EG", 24, "yMd", "١٦\u200F/٥\u200F/٢٠١٢");
        row("th_TH", 24, "yMMMM", "พฤษภาคม 2012");
        row("fa_IR", 24, "yMMMM", "مهٔ ۲۰۱۲");
        row("sr_Latn_RS", 24, "yMMMMd", "16. maj 2012.");
        row("en_US", 12, "", "");
        row("en_US", 12, "???", "");
    }

    void skeletons()
    {
        const auto [region, clock, skeleton, text] = cells<QString, int, QString, QString>();
        QVERIFY(m_root.setRegion(region.toLatin1()));
        QVERIFY(setClock(clock));
        const CustomDateFormatter formatter(skeleton);
        QVERIFY(formatter.isValid());
        for (const char* const moment : {"2012-05-16T15:05:00", "2012-05-16T15:05:00Z", "2012-05-16T15:05:00+09:00"}) {
            QCOMPARE(formatter.format(at(moment)), text);
        }
    }

    void clockIsNotFollowedWithoutHours()
    {
        CustomDateFormatterPrivate d(nullptr, "yMMMd");
        QVERIFY(d.formatter && !d.clockSetting);
        for (const char* const skeleton : {"h", "H", "k", "K"}) {
            d.skeleton = skeleton;
            d.updateFormatter();
            QVERIFY2(d.clockSetting, skeleton);
        }
        d.skeleton = "jmm";
        d.updateFormatter();
        QVERIFY(!d.clockSetting);
    }

    void regionIsFollowedWithoutAnEventLoop()
    {
        const CustomDateFormatter formatter("yMMMd");
        QVERIFY(m_root.setRegion("de_DE"));
        QCOMPARE(formatter.format(at("2012-05-16T15:05:00")), QStringLiteral("16. Mai 2012"));
        QVERIFY(m_root.setRegion("zh_TW"));
        QCOMPARE(formatter.format(at("2012-05-16T15:05:00")), QString::fromUtf8("2012年5月16日"));
    }

    void zonesShowTheInstant_data()
    {
        const NamedRow<QByteArray, QString, QString> row;
        // The hours before and after summer time began in Europe.
        row("Berlin", "Europe/Berlin", "01:30 ", "03:30 ");
        row("New York", "America/New_York", "20:30 ", "21:30 ");
        row("Kathmandu", "Asia/Kathmandu", "06:15 ", "07:15 ");
        row("unknown", "Nowhere/Atlantis", "00:30 ", "01:30 ");
    }

    void zonesShowTheInstant()
    {
        const auto [zone, before, after] = cells<QByteArray, QString, QString>();
        QVERIFY(setTimeZone(zone));
        QVERIFY(setClock(24));
        const CustomDateFormatter formatter("hmz");
        const QDateTime instant = at("2012-03-25T00:30:00Z");
        for (const QDateTime& moment : {instant, instant.toLocalTime(), instant.toOffsetFromUtc(-7200)}) {
            QCOMPARE(formatter.format(moment), before + zoneName(zone, moment, icu::Locale::getUS()));
            QCOMPARE(formatter.format(moment.addSecs(3600)),
                     after + zoneName(zone, moment.addSecs(3600), icu::Locale::getUS()));
        }
        QCOMPARE(CustomDateFormatter("hm").format(instant), QStringLiteral("00:30"));
    }

    void textsOfSlots_data()
    {
        const Row<QString, QString, QString, QString> row;
        const char* const noon = "2012-05-16T12:00:00"; // a Wednesday
        row(noon, "2013-01-01T00:00:00", "January 2013", "January 2013");
        row(noon, "2012-12-31T23:59:59", "Dec 31", "Dec 31");
        row(noon, "2012-05-20T00:00:00", "May 20", "May 20");
        row(noon, "2012-05-19T23:59:59", "Sat 23:59", "Saturday");
        row(noon, "2012-05-18T00:00:00", "Fri 00:00", "Friday");
        row(noon, "2012-05-17T23:59:59", "tomorrow 23:59", "tomorrow");
        row(noon, "2012-05-17T00:00:00", "tomorrow 00:00", "tomorrow");
        row(noon, "2012-05-16T23:59:59", "in 11 hours", "today");
        row(noon, "2012-05-16T13:00:00", "in 1 hour", "today");
        row(noon, "2012-05-16T12:59:59", "in 59 minutes", "today");
        row(noon, "2012-05-16T12:01:00", "in 1 minute", "today");
        row(noon, "2012-05-16T12:00:59", "in 0 minutes", "today");
        row(noon, noon, "in 0 minutes", "today");
        row(noon, "2012-05-16T11:59:01", "in 0 minutes", "today");
        row(noon, "2012-05-16T11:59:00", "1 minute ago", "today");
        row(noon, "2012-05-16T11:00:01", "59 minutes ago", "today");
        row(noon, "2012-05-16T11:00:00", "1 hour ago", "today");
        row(noon, "2012-05-16T00:00:00", "12 hours ago", "today");
        row(noon, "2012-05-15T23:59:59", "yesterday 23:59", "yesterday");
        row(noon, "2012-05-15T00:00:00", "yesterday 00:00", "yesterday");
        row(noon, "2012-05-14T23:59:59", "Mon 23:59", "Monday");
        row(noon, "2012-05-13T00:00:00", "Sun 00:00", "Sunday");
        row(noon, "2012-05-12T23:59:59", "May 12", "May 12");
        row(noon, "2012-01-01T00:00:00", "Jan 1", "Jan 1");
        row(noon, "2011-12-31T23:59:59", "December 2011", "December 2011");
        row("2012-05-15T23:59:59", "2012-05-16T00:00:00", "tomorrow 00:00", "tomorrow");
        row("2012-05-16T00:00:01", "2012-05-15T23:59:59", "yesterday 23:59", "yesterday");
        row("2012-05-16T23:30:00", "2012-05-17T00:10:00", "tomorrow 00:10", "tomorrow");
        row("2012-12-31T12:00:00", "2013-01-01T12:00:00", "January 2013", "January 2013");
        row("2013-01-01T00:00:00", "2012-12-31T23:59:59", "December 2012", "December 2012");
        row("2012-02-28T12:00:00", "2012-03-01T12:00:00", "Thu 12:00", "Thursday");
    }

    void textsOfSlots()
    {
        const auto [anchor, moment, timeCritical, nonTimeCritical] = cells<QString, QString, QString, QString>();
        MessageLog log;
        RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
        for (const QString& text : {timeCritical, nonTimeCritical}) {
            formatter.setLocale(QLocale("en_US"));
            formatter.setClockFormat(ClockFormat::Use24hourClock);
            formatter.setAnchorTime(at(qPrintable(anchor)));
            QCOMPARE(formatter.format(at(qPrintable(moment))), text);
            formatter.setType(RelativeDateFormat::NonTimeCritical);
        }
        QCOMPARE(log.take(), QStringList());
    }

    void textsOfLocales_data()
    {
        const Row<QString, QStringList> row;
        // 5 minutes ago, in 3 hours, yesterday, tomorrow, two days ago, a week ago, last year
        row("de",
            {"vor 5 Minuten", "in 3 Stunden", "gestern, 08:30", "morgen, 19:00", "Mo., 12:00", "9. Mai", "Mai 2011"});
        row("fr",
            {"il y a 5 minutes", "dans 3 heures", "hier 08:30", "demain 19:00", "lun. 12:00", "9 mai", "mai 2011"});
        row("ja", {"5 分前", "3 時間後", "昨日 8:30", "明日 19:00", "12:00 (月)", "5月9日", "2011年5月"});
        row("ar", {"قبل ٥ دقائق", "خلال ٣ ساعات", "أمس ٠٨:٣٠", "غدًا ١٩:٠٠", "الاثنين ١٢:٠٠", "٩ مايو", "مايو ٢٠١١"});
        row("ko", {"5분 전", "3시간 후", "어제 08:30", "내일 19:00", "(월) 12:00", "5월 9일", "2011년 5월"});
        row("zh_TW", {"5 分鐘前", "3 小時後", "昨天 08:30", "明天 19:00", "週一 12:00", "5月9日", "2011年5月"});
        row("he", {"לפני 5 דקות", "בעוד 3 שעות", "אתמול 8:30", "מחר 19:00", "יום ב׳ 12:00", "9 במאי", "מאי 2011"});
    }

    void textsOfLocales()
    {
        const auto [locale, texts] = cells<QString, QStringList>();
        RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
        formatter.setClockFormat(ClockFormat::Use24hourClock);
        formatter.setLocale(QLocale(locale));
        formatter.setAnchorTime(at("2012-05-16T12:00:00"));
        QStringList written;
        for (const char* const moment :
             {"2012-05-16T11:55:00", "2012-05-16T15:00:00", "2012-05-15T08:30:00", "2012-05-17T19:00:00",
              "2012-05-14T12:00:00", "2012-05-09T12:00:00", "2011-05-18T12:00:00"}) {
            written.append(formatter.format(at(moment)));
        }
        QCOMPARE(written, texts);
    }

    void wording_data()
    {
        const Row<QString, RelativeDateFormat::Type, QString, QString, QString, QString> row;
        constexpr auto time = RelativeDateFormat::TimeCritical;
        constexpr auto day = RelativeDateFormat::NonTimeCritical;
        const char* const newYear = "2013-01-01T00:02:00";
        row("en", time, newYear, "2013-01-01T00:02:59", "in 0 minutes", "now");
        row("de", time, newYear, "2013-01-01T00:01:01", "in 0 Minuten", "jetzt");
        row("ar", time, newYear, newYear, "خلال ٠ دقيقة", "الآن");
        row("zh", time, newYear, newYear, "0分钟后", "现在");
        row("en", time, newYear, "2013-01-01T00:01:00", "1 minute ago", "1 minute ago");
        row("en", day, newYear, newYear, "today", "today");
        row("en", time, newYear, "2012-12-31T23:59:00", "December 2012", "yesterday 23:59");
        row("en", time, newYear, "2012-12-30T10:00:00", "December 2012", "Sun 10:00");
        row("en", day, newYear, "2012-12-29T10:00:00", "December 2012", "Saturday");
        row("en", time, newYear, "2012-12-28T23:59:59", "December 2012", "December 2012");
        row("fr", time, "2012-12-31T23:59:00", "2013-01-01T00:00:00", "janvier 2013", "demain 00:00");
        row("en", day, "2012-12-31T23:59:00", "2013-01-02T00:00:00", "January 2013", "Wednesday");
        row("en", time, "2012-05-16T12:00:00", "2012-05-15T12:00:00", "yesterday 12:00", "yesterday 12:00");
    }

    void wording()
    {
        const auto [locale, type, anchor, moment, exact, natural] =
            cells<QString, RelativeDateFormat::Type, QString, QString, QString, QString>();
        MessageLog log;
        RelativeDateFormatter formatter(type);
        formatter.setLocale(QLocale(locale));
        formatter.setClockFormat(ClockFormat::Use24hourClock);
        formatter.setAnchorTime(at(qPrintable(anchor)));
        QCOMPARE(formatter.format(at(qPrintable(moment))), exact);
        formatter.setWording(RelativeDateWording::Natural);
        QCOMPARE(formatter.format(at(qPrintable(moment))), natural);
        formatter.setWording(static_cast<RelativeDateWording::Type>(3));
        QCOMPARE(formatter.format(at(qPrintable(moment))), exact);
        QCOMPARE(log.take(), QStringList());
    }

    void settersSignalChanges()
    {
        RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
        QSignalSpy changes(&formatter, SIGNAL(changed()));
        const auto signalled = [&changes] {
            const auto count = changes.count();
            changes.clear();
            return count;
        };
        const QDateTime anchor = at("2012-05-16T12:00:00");
        formatter.setAnchorTime(anchor);
        QCOMPARE(signalled(), 1);
        formatter.setAnchorTime(anchor);
        QCOMPARE(signalled(), 0);
        formatter.applyCurrentTimeAsAnchor();
        QCOMPARE(signalled(), 1);
        formatter.setLocale(QLocale("en_US"));
        formatter.applyUserRegionLocale();
        QCOMPARE(signalled(), 0);
        QVERIFY(m_root.setRegion("fr_FR"));
        formatter.applyUserRegionLocale();
        QCOMPARE(signalled(), 1);
        formatter.setClockFormat(ClockFormat::ApplyUserFormat);
        QCOMPARE(signalled(), 0);
        QVERIFY(QMetaObject::invokeMethod(&formatter, "setClockFormat", Q_ARG(int, 24)));
        QCOMPARE(signalled(), 1);
        formatter.setClockFormat(ClockFormat::Use24hourClock);
        QCOMPARE(signalled(), 0);
        formatter.setWording(RelativeDateWording::Exact);
        QCOMPARE(signalled(), 0);
        formatter.setWording(RelativeDateWording::Natural);
        QCOMPARE(signalled(), 1);
        QCOMPARE(formatter.locale(), QLocale("fr_FR"));
        QCOMPARE(formatter.clockFormat(), ClockFormat::Use24hourClock);
        formatter.setType(RelativeDateFormat::TimeCritical);
        QCOMPARE(signalled(), 0);
        formatter.setType(RelativeDateFormat::NonTimeCritical);
        QCOMPARE(signalled(), 1);
        QCOMPARE(formatter.wording(), RelativeDateWording::Exact);
        QCOMPARE(formatter.clockFormat(), ClockFormat::ApplyUserFormat);
        formatter.setAnchorTime(anchor);
        QCOMPARE(formatter.anchorTime(), anchor);
    }

    void typeResetsToDefaults()
    {
        QVERIFY(setClock(24));
        RelativeDateFormatter formatter(RelativeDateFormat::NonTimeCritical);
        formatter.setAnchorTime(at("1999-01-01T00:00:00"));
        formatter.setLocale(QLocale("de_DE"));
        formatter.setClockFormat(ClockFormat::Use12hourClock);
        formatter.setType(RelativeDateFormat::TimeCritical);
        QCOMPARE(formatter.format(QDateTime::currentDateTime().addSecs(-10)), QStringLiteral("in 0 minutes"));
        formatter.setAnchorTime(at("2012-05-16T12:00:00"));
        QCOMPARE(formatter.format(at("2012-05-15T15:00:00")), QStringLiteral("yesterday 15:00"));
    }

    void settingsAreFollowedByAMember()
    {
        RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("No such slot .*missing")));
        QVERIFY(!formatter.connectToSettings(this, SLOT(missing())));
        QVERIFY(formatter.children().isEmpty());
        QVERIFY(formatter.connectToSettings(&formatter, SIGNAL(changed())));
    }

    void invalidTypeFormatsNothing()
    {
        MessageLog log;
        RelativeDateFormatter formatter(static_cast<RelativeDateFormat::Type>(3));
        QVERIFY(formatter.format(QDateTime::currentDateTime()).isNull());
        const QStringList expected{
            QStringLiteral("critical: zel::utility::i18n::RelativeDateFormatterPrivate::RelativeDateFormatterPrivate("
                           "zel::utility::i18n::RelativeDateFormatter*, zel::utility::i18n::RelativeDateFormat::Type) "
                           "called with invalid format type 3 "),
            QStringLiteral(
                "warning: QString zel::utility::i18n::RelativeDateFormatterPrivate::format(const QDateTime&) "
                "const cannot use malconstructed RelativeDateFormatterPrivate "),
        };
        QCOMPARE(log.take(), expected);
        QCOMPARE(formatter.formatAll({QDateTime(), QDateTime::currentDateTime()}), (QStringList{QString(), QString()}));
        QCOMPARE(log.take().size(), 2);
        QVERIFY(!formatter.validUntil(QDateTime::currentDateTime()).isValid());
        formatter.setType(RelativeDateFormat::NonTimeCritical);
        QCOMPARE(formatter.format(QDateTime::currentDateTime()), QStringLiteral("today"));
        auto shortLived = std::make_unique<RelativeDateFormatter>(RelativeDateFormat::TimeCritical);
        connect(shortLived.get(), &RelativeDateFormatter::changed, this, [&shortLived] { shortLived.reset(); });
        shortLived->setType(RelativeDateFormat::NonTimeCritical);
        QVERIFY(shortLived == nullptr);
        QCOMPARE(formatter.formatAll({}), QStringList());
    }

private:
    bool setClock(int hours)
    {
        return m_root.setClock(QByteArray::number(hours)) &&
               QTest::qWaitFor([hours] { return ClockSetting::clockFormat() == hours; }, 2000);
    }

    bool setTimeZone(const QByteArray& zone)
    {
        return m_root.setTimeZone(zone) &&
               QTest::qWaitFor([&zone] { return TimeZoneSetting::timeZone() == QString::fromLatin1(zone); }, 2000);
    }

    SettingsRoot m_root;
};

QTEST_GUILESS_MAIN(FormattersTest)
#include "tst_formatters.moc"
