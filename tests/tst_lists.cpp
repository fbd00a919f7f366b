// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Lists of moments, and how long a text is valid: both compared with format() for each moment.

#include "relative/RelativeDate.h"
#include "relative/RelativeDistance.h"
#include "support/MessageLog.h"
#include "support/Rows.h"
#include "support/SettingsRoot.h"
#include <algorithm>
#include <ctime>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTimeZone>
#include <QtTest/QTest>
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

Q_DECLARE_METATYPE(RelativeDateWording::Type)

namespace {

constexpr qint64 minute = 60'000;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;

const char* const locales[] = {"en_US", "en_GB",      "de_DE", "fr_FR",      "fr_CA", "ja_JP", "ko_KR", "zh_CN",
                               "zh_TW", "ar_EG",      "fa_IR", "he_IL",      "hi_IN", "th_TH", "mn_MN", "pl_PL",
                               "ru_RU", "sv_SE",      "pt_PT", "sr_Latn_RS", "es_ES", "it_IT", "nl_NL", "tr_TR",
                               "hu_HU", "fi_FI",      "el_GR", "bg_BG",      "cs_CZ", "uk_UA", "vi_VN", "bn_BD",
                               "ta_IN", "zh_Hant_HK", "my_MM", "am_ET",      "ur_PK", "lv_LV", "sl_SI", "C"};

// Moments and anchors, mostly close to each other, the same in every run.
class Moments
{
public:
    QDateTime anchor()
    {
        // Often within an hour of a clock change, a turn of the year, or the change of calendars.
        static const char* const edges[] = {"2012-03-25T01:00:00Z", "2012-10-28T01:00:00Z", "2012-03-11T07:00:00Z",
                                            "2012-04-01T15:00:00Z", "2012-12-31T23:00:00Z", "1582-10-15T00:00:00Z",
                                            "2012-09-03T10:30:00Z"};
        QDateTime time = QDateTime::fromString(QString::fromLatin1(edges[m_random.bounded(7)]), Qt::ISODate);
        if (m_random.bounded(4) == 0) {
            time = time.addDays(m_random.bounded(-100'000, 8'000)); // Qt 5 knows no summer time after 2037
        }
        return inSomeZone(time.addMSecs(m_random.bounded(int(-2 * hour), int(2 * hour))));
    }

    QDateTime near(const QDateTime& anchor)
    {
        static constexpr qint64 scales[] = {minute, hour, day, 4 * day, 400 * day, 300'000 * day};
        const qint64 distance =
            static_cast<qint64>((m_random.generateDouble() * 2 - 1) * static_cast<double>(scales[m_random.bounded(6)]));
        const qint64 whole = m_random.bounded(3) == 0 ? minute : 1;
        return inSomeZone(anchor.addMSecs(distance / whole * whole));
    }

    qint64 upTo(qint64 limit) { return static_cast<qint64>(m_random.generateDouble() * static_cast<double>(limit)); }

private:
    QDateTime inSomeZone(const QDateTime& time)
    {
        switch (m_random.bounded(5)) {
        case 0:
            return time.toUTC();
        case 1:
            return time.toOffsetFromUtc(20'700);
        case 2:
            return time.toTimeZone(QTimeZone("Australia/Lord_Howe"));
        default:
            return time.toLocalTime();
        }
    }

    QRandomGenerator m_random{20120903};
};

template <typename Formatter>
QStringList oneByOne(const Formatter& formatter, const QList<QDateTime>& moments)
{
    QStringList texts;
    for (const QDateTime& moment : moments) {
        texts.append(formatter.format(moment));
    }
    return texts;
}

} // namespace

class ListsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "Europe/Berlin");
        ::tzset();
        QVERIFY(m_root.setClock("12"));
        QVERIFY(m_root.setTimeZone("America/New_York"));
    }

    // The arithmetic agrees with ICU's calendars.
    void distances()
    {
        Moments moments;
        for (int i = 0; i < 2000; ++i) {
            const QDateTime anchor = moments.anchor();
            const QDateTime moment = moments.near(anchor);
            const RelativeDistance distance(RelativeDistance::reading(anchor), RelativeDistance::reading(moment));
            const QByteArray what =
                (anchor.toString(Qt::ISODateWithMs) + ' ' + moment.toString(Qt::ISODateWithMs)).toUtf8();
            QVERIFY2(distance.years() == RelativeDate::offset(anchor, moment, RelativeDateElement::Years), what);
            if (distance.years() == 0) {
                QVERIFY2(distance.days() == RelativeDate::offset(anchor, moment, RelativeDateElement::NamedDays), what);
            }
            for (const auto element :
                 {RelativeDateElement::Minutes, RelativeDateElement::Hours, RelativeDateElement::NamedDays}) {
                if (qAbs(distance.days()) < 1000) {
                    QVERIFY2(distance.difference(element) == RelativeDate::difference(anchor, moment, element, false),
                             what);
                }
            }
        }
    }

    void relativeLists_data() { locales_data(); }

    void relativeLists()
    {
        QFETCH(QString, locale);
        Moments moments;
        MessageLog log;
        for (const auto type : {RelativeDateFormat::TimeCritical, RelativeDateFormat::NonTimeCritical}) {
            RelativeDateFormatter formatter(type);
            formatter.setLocale(QLocale(locale));
            for (const auto clock : {ClockFormat::Use12hourClock, ClockFormat::Use24hourClock}) {
                formatter.setClockFormat(clock);
                for (const auto wording : {RelativeDateWording::Exact, RelativeDateWording::Natural}) {
                    formatter.setWording(wording);
                    formatter.setAnchorTime(moments.anchor());
                    QList<QDateTime> list{QDateTime(), formatter.anchorTime(),
                                          QDateTime(QDate(-3000, 3, 15), QTime(12, 0)),
                                          QDateTime(QDate(12345, 6, 7), QTime(8, 9))};
                    for (int i = 0; i < 60; ++i) {
                        list.append(moments.near(formatter.anchorTime()));
                    }
                    const QStringList texts = formatter.formatAll(list);
                    const QStringList messages = log.take();
                    QCOMPARE(texts, oneByOne(formatter, list));
                    QCOMPARE(messages, log.take());
                }
            }
        }
    }

    void customLists_data() { locales_data(); }

    void customLists()
    {
        QFETCH(QString, locale);
        QVERIFY(m_root.setRegion(locale.toLatin1()));
        Moments moments;
        for (const char* const skeleton : {"yMMMd", "EEEEhm", "yMMMdHmsz", "v", ""}) {
            const CustomDateFormatter formatter(QString::fromLatin1(skeleton));
            QList<QDateTime> list{QDateTime()};
            for (int i = 0; i < 30; ++i) {
                list.append(moments.near(moments.anchor()));
            }
            QCOMPARE(formatter.formatAll(list), oneByOne(formatter, list));
        }
    }

    void validUntilTextsChange_data()
    {
        addColumns<RelativeDateFormat::Type, RelativeDateWording::Type>();
        for (const auto type : {RelativeDateFormat::TimeCritical, RelativeDateFormat::NonTimeCritical}) {
            for (const auto wording : {RelativeDateWording::Exact, RelativeDateWording::Natural}) {
                QTest::addRow("%d %d", type, wording) << type << wording;
            }
        }
    }

    void validUntilTextsChange()
    {
        const auto [type, wording] = cells<RelativeDateFormat::Type, RelativeDateWording::Type>();
        Moments moments;
        RelativeDateFormatter formatter(type);
        formatter.setWording(wording);
        int near = 0;
        int changed = 0;
        for (int i = 0; i < 1600; ++i) {
            if (i % 40 == 0) {
                formatter.setLocale(QLocale(QString::fromLatin1(locales[i / 40])));
            }
            const QDateTime anchor = moments.anchor();
            const QDateTime moment = moments.near(anchor);
            const auto textAt = [&](qint64 later) {
                formatter.setAnchorTime(anchor.addMSecs(later));
                return formatter.format(moment);
            };
            const QString text = textAt(0);
            const QDateTime until = formatter.validUntil(moment);
            const qint64 held = until.isValid() ? anchor.msecsTo(until) : 400 * day;
            const QByteArray what =
                (anchor.toString(Qt::ISODateWithMs) + ' ' + moment.toString(Qt::ISODateWithMs) + ' ' + text).toUtf8();
            QVERIFY2(held > 0, what);
            for (const qint64 later : {held - 1, moments.upTo(held), moments.upTo(std::min(held, hour))}) {
                QVERIFY2(textAt(later) == text, what);
            }
            if (until.isValid() && qAbs(anchor.msecsTo(moment)) < day) {
                ++near;
                changed += textAt(held) != text ? 1 : 0;
            }
            QVERIFY2(!until.isValid() || (until.timeSpec() == anchor.timeSpec()), what);
        }
        QVERIFY2(near > 300, qPrintable(QString::number(near)));
        QVERIFY2(changed * 100 >= near * 95, qPrintable(QStringLiteral("%1 of %2").arg(changed).arg(near)));
    }

    // In 1945, Berlin went from one summer time to another, at a local time that Qt cannot tell from the one before.
    void untilPassesDoubleSummerTime()
    {
        RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
        formatter.setAnchorTime(QDateTime(QDate(1940, 1, 1), QTime(0, 0)));
        const QDateTime moment(QDate(2012, 1, 1), QTime(0, 0));
        QCOMPARE(formatter.validUntil(moment), moment);
    }

private:
    static void locales_data()
    {
        QTest::addColumn<QString>("locale");
        for (const char* const locale : locales) {
            QTest::newRow(locale) << QString::fromLatin1(locale);
        }
    }

    SettingsRoot m_root;
};

QTEST_GUILESS_MAIN(ListsTest)
#include "tst_lists.moc"
