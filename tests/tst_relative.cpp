// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Distances between moments, their ranges, and the texts of relative patterns.

#include "relative/DateOffsetRange.h"
#include "relative/RelativeDate.h"
#include "relative/RelativeDatePattern.h"
#include "support/MessageLog.h"
#include "support/Rows.h"
#include "support/SettingsRoot.h"
#include <limits>
#include <QtTest/QTest>
#include <unicode/locid.h>

using namespace zel::utility::i18n;

namespace {

constexpr auto noElement = static_cast<RelativeDateElement::Type>(64);
constexpr unsigned int noMinimum = 0;

QDateTime at(const char* iso)
{
    return QDateTime::fromString(QString::fromLatin1(iso), Qt::ISODate);
}

// Sets ICU's default locale while it exists.
class DefaultLocale
{
public:
    explicit DefaultLocale(const char* name) { icu::Locale::setDefault(icu::Locale(name), m_status); }
    ~DefaultLocale() { icu::Locale::setDefault(m_previous, m_status); }
    Q_DISABLE_COPY_MOVE(DefaultLocale)

private:
    const icu::Locale m_previous = icu::Locale::getDefault();
    UErrorCode m_status = U_ZERO_ERROR;
};

} // namespace

class RelativeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_root.setClock("24")); }

    void invalidElementsAreReported()
    {
        const QDateTime now = QDateTime::currentDateTime();
        MessageLog log;
        QVERIFY(RelativeDate::elementName(noElement).isNull());
        QVERIFY(!RelativeDate::offsetIsAbsolute(noElement));
        QVERIFY(RelativeDate::characters(noElement).isNull());
        QCOMPARE(RelativeDate::apply("EEEE", noElement, "x"), QStringLiteral("EEEE"));
        QCOMPARE(RelativeDate::offset(now, now.addDays(1), noElement), 0);
        QCOMPARE(RelativeDate::difference(now, now.addDays(1), noElement, false), 0);
        const auto message = [](const char* function, const char* parameters, const QString& value = "64") {
            return QStringLiteral("critical: static %1(%2) called with invalid element type: %3 ")
                .arg(QString(function).insert(QString(function).indexOf(' ') + 1, "zel::utility::i18n::RelativeDate::"),
                     QString(parameters).replace('E', "zel::utility::i18n::RelativeDateElement::Type"), value);
        };
        const QString characters = message("QString characters", "E", " 64");
        QCOMPARE(log.take(),
                 QStringList({message("QString elementName", "E"), message("bool offsetIsAbsolute", "E"), characters,
                              characters, message("QString apply", "const QString&, E, const QString&"),
                              message("int offset", "const QDateTime&, const QDateTime&, E"),
                              message("int difference", "const QDateTime&, const QDateTime&, E, bool")}));
    }

    void phrasesReplaceLetters_data()
    {
        const NamedRow<QString, int, QString, QString> row;
        row("day", "EEEE, d MMMM", 128, "Yesterday", "'Yesterday', d MMMM");
        row("quoted letter stays", "h 'h' mm", 32, "3 hours", "'3 hours' 'h' mm");
        row("every place goes", "mm:ss m", 16, "5 minutes", "'5 minutes':ss ");
        row("order of letters decides", "H:mm h", 32, "3 hours", ":mm '3 hours'");
        row("phrase is put in as it is", "E", 128, "d''hier", "'d''hier'");
    }

    void phrasesReplaceLetters()
    {
        const auto [format, element, phrase, result] = cells<QString, int, QString, QString>();
        MessageLog log;
        QCOMPARE(RelativeDate::apply(format, static_cast<RelativeDateElement::Type>(element), phrase), result);
        QCOMPARE(log.take(), QStringList());
    }

    void phrasesThatDoNotFit()
    {
        const QString apply = QStringLiteral("static QString zel::utility::i18n::RelativeDate::apply(const QString&, "
                                             "zel::utility::i18n::RelativeDateElement::Type, const QString&) ");
        MessageLog log;
        QCOMPARE(RelativeDate::apply("d 'year' MMMM", RelativeDateElement::Years, "last year"),
                 QStringLiteral("d 'year' MMMM"));
        QCOMPARE(log.take(), QStringList{"critical: " + apply +
                                         "called with format \"d 'year' MMMM\" which does not contain "
                                         "the requested element type \"0x800\" "});
        QCOMPARE(RelativeDate::apply("EEEE d", RelativeDateElement::NamedDays, QString()), QStringLiteral(" d"));
        QCOMPARE(log.take(), QStringList{"warning: " + apply + "called with empty element string for \"Named Days\" "});
    }

    void distances_data()
    {
        const NamedRow<QString, QString, int, int, int, int> row;
        using namespace RelativeDateElement;
        row("midnight between", "2012-05-05T23:50:00", "2012-05-06T00:10:00", NamedDays, 1, 0, 0);
        row("hour between", "2012-05-05T10:59:00", "2012-05-05T11:01:00", Minutes, -58, 2, 2);
        row("a second short of a minute", "2012-05-05T10:00:00", "2012-05-05T10:00:59", Minutes, 0, 0, 0);
        row("a second short of a minute ago", "2012-05-05T10:00:59", "2012-05-05T10:00:00", Minutes, 0, 0, 0);
        row("a minute ago", "2012-05-05T10:01:00", "2012-05-05T10:00:00", Minutes, -1, -1, -1);
        row("hours and minutes", "2012-05-05T10:00:00", "2012-05-05T12:25:00", Minutes, 25, 145, 25);
        row("hours and minutes in hours", "2012-05-05T10:00:00", "2012-05-05T12:25:00", Hours, 2, 2, 2);
        row("a day and hours", "2012-05-05T10:00:00", "2012-05-06T13:00:00", Hours, 3, 27, 3);
        row("months and days", "2012-05-05T10:00:00", "2012-07-08T10:00:00", NamedDays, 64, 64, 3);
        row("end of a leap year", "2012-12-31T12:00:00", "2013-01-01T12:00:00", NamedDays, -365, 1, 1);
        row("end of a leap year in years", "2012-12-31T12:00:00", "2013-01-01T12:00:00", Years, 1, 0, 0);
        row("years", "2012-05-05T10:00:00", "2008-05-04T10:00:00", Years, -4, -4, 0);
    }

    void distances()
    {
        const auto [anchor, moment, element, offset, difference, remainder] =
            cells<QString, QString, int, int, int, int>();
        const QDateTime from = at(qPrintable(anchor));
        const QDateTime to = at(qPrintable(moment));
        const auto type = static_cast<RelativeDateElement::Type>(element);
        // The Persian year begins in March; Saudi months follow the moon.
        for (const char* const locale : {"en_US", "fa_IR", "ar_SA"}) {
            const DefaultLocale process(locale);
            QCOMPARE(RelativeDate::offset(from, to, type), offset);
            QCOMPARE(RelativeDate::difference(from, to, type, false), difference);
            QCOMPARE(RelativeDate::difference(from, to, type, true), remainder);
        }
    }

    void timeZonesAreIgnored()
    {
        const QDate day(2012, 3, 25);
        const QDateTime local(day, QTime(10, 0));
        const QDateTime shifted = QDateTime::fromString(QStringLiteral("2012-03-25T10:00+05:00"), Qt::ISODate);
        for (const auto element : {RelativeDateElement::Minutes, RelativeDateElement::Hours,
                                   RelativeDateElement::NamedDays, RelativeDateElement::Years}) {
            QCOMPARE(RelativeDate::offset(local, shifted, element), 0);
            QCOMPARE(RelativeDate::difference(local, shifted, element, false), 0);
        }
    }

    void ranges_data()
    {
        const NamedRow<int, unsigned int, bool, bool, QString, bool> row;
        using namespace RelativeDateElement;
        row("long ago", Minutes, noMinimum, false, true, "2011-05-16T00:05:00", true);
        row("half a minute later is now", Minutes, noMinimum, false, true, "2012-05-16T00:05:30", true);
        row("now is not later", Minutes, noMinimum, false, false, "2012-05-16T00:05:30", false);
        row("a minute later is", Minutes, noMinimum, false, false, "2012-05-16T00:06:00", true);
        row("yesterday ten minutes ago", NamedDays, 1, true, true, "2012-05-15T23:55:00", true);
        row("yesterday is not tomorrow", NamedDays, 1, true, false, "2012-05-15T23:55:00", false);
        row("59 minutes are no hour", Hours, 1, false, false, "2012-05-16T01:04:59", false);
        row("60 minutes are one", Hours, 1, false, false, "2012-05-16T01:05:00", true);
        row("three days are not four", NamedDays, 4, true, false, "2012-05-19T23:59:00", false);
        row("four days are", NamedDays, 4, true, false, "2012-05-20T00:00:00", true);
        row("no count reaches the largest minimum", Minutes, std::numeric_limits<unsigned int>::max(), false, true,
            "2011-05-16T00:05:00", false);
        row("an invalid element counts nothing", noElement, noMinimum, false, true, "2030-01-01T00:00:00", true);
    }

    void ranges()
    {
        const auto [element, minimum, absolute, past, moment, contained] =
            cells<int, unsigned int, bool, bool, QString, bool>();
        MessageLog log;
        DateOffsetRange range(at("1999-01-01T00:00:00"), static_cast<RelativeDateElement::Type>(element), minimum,
                              absolute, past, nullptr);
        range.setAnchorTime(at("2012-05-16T00:05:00"));
        QCOMPARE(range.contains(at(qPrintable(moment))), contained);
        QCOMPARE(log.take().isEmpty(), element != noElement);
    }

    void patterns_data()
    {
        const Row<QString, QString, QList<int>, QString, QString> row;
        // The anchor is 16 May 2012, 12:00.
        row("en", "yMMMM", {}, "2011-05-18T12:00:00", "May 2011");
        row("en", "Ejm", {128}, "2012-05-15T10:30:00", "yesterday 10:30");
        row("de", "H", {32}, "2012-05-16T09:00:00", "vor 3 Stunden");
        row("uk", "E", {128}, "2012-05-15T09:00:00", "учора");
        row("fr", "m", {16}, "2012-05-16T11:55:00", "il y a 5 minutes");
        row("fr", "E", {128}, "2012-05-16T09:00:00", "aujourd’hui");
        row("br", "E", {128}, "2012-05-17T12:00:00", "warcʼhoazh");
        row("de", "Hm", {32, 16}, "2012-05-16T14:25:00", "in 2 Stunden:in 25 Minuten");
        row("en", "y", {2048}, "2015-06-16T12:00:00", "in 0 years");
    }

    void patterns()
    {
        const auto [locale, skeleton, elements, moment, text] = cells<QString, QString, QList<int>, QString, QString>();
        QList<RelativeDateElement::Type> types;
        for (const int element : elements) {
            types.append(static_cast<RelativeDateElement::Type>(element));
        }
        MessageLog log;
        const RelativeDatePattern pattern(QLocale(locale), ClockFormat::Use24hourClock, at("2012-05-16T12:00:00"),
                                          skeleton, types, nullptr);
        QCOMPARE(pattern.format(at(qPrintable(moment))), text);
        QCOMPARE(log.take(), QStringList());
    }

private:
    SettingsRoot m_root;
};

QTEST_GUILESS_MAIN(RelativeTest)
#include "tst_relative.moc"
