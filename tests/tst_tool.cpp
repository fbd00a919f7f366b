// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "support/Child.h"
#include "support/Rows.h"
#include "support/SettingsRoot.h"
#include "support/ZoneName.h"
#include <csignal>
#include <fcntl.h>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>
#include <sys/file.h>
#include <sys/stat.h>
#include <unicode/uversion.h>
#include <unistd.h>

namespace {

using Result = Child::Result;

QStringList wordsOf(const char* line)
{
    return QString::fromUtf8(line).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

// A running program.
class Running : public Child
{
public:
    explicit Running(const char* line) : Child(QStringLiteral(ZEL_TOOL), wordsOf(line)) {}
};

// Runs the program; bars separate the words of the command line.
Result run(const char* line, const QByteArray& input = {})
{
    Running program(line);
    program.feed(input);
    return program.finish();
}

QByteArray textOf(const QString& file)
{
    QFile device(file);
    return device.open(QIODevice::ReadOnly) ? device.readAll() : QByteArray("(none)");
}

void expectRefusal(const char* line, const QString& error)
{
    const Result result = run(line);
    QCOMPARE(result.errors, QStringLiteral("zel-i18n: %1\n").arg(error));
    QCOMPARE(result.status, 1);
}

const QString settings = QStringLiteral("/pps/system/settings");

} // namespace

// The command line program: arguments and input; output, errors and status.
class ToolTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        qputenv("LC_ALL", "C"); // output is UTF-8 all the same
        qunsetenv("ICU_DATA");
        qputenv("TMPDIR", QFile::encodeName(m_temporary.path()));
    }

    void answers_data()
    {
        const NamedRow<QString> row;
        row("percent|--locale|en_US|--max|1|0.256|-0.5", "25.6%\n-50%");
        row("percent|--locale|en_US|--min|2|0.5|-.5", "50.00%\n-50.00%");
        row("percent|--locale|en_US|--min|3|--max|0|0.5", "50%");
        row("percent|--locale|en_US|0.256|0.125", "26%\n12%");
        row("percent|--locale|tr_TR|0.5", "%50");
        row("percent|--device|region=de_DE|12.5", "1.250\u00a0%");
        row("percent|--locale|en_US|-5|-1e-2|-inf", "-500%\n-1%\n-\u221e%");
        row("percent|--locale|en_US|--|-inf", "-\u221e%");
        row("percent|--locale|en_US|--json|0.25", R"({"locale":"en_US","text":"25%","value":0.25})");
        row("percent|--locale|en_US|--json|-inf", R"({"locale":"en_US","text":"-∞%","value":"-inf"})");

        row("format|yMMMd|2012-05-16|--device|region=en_US", "May 16, 2012");
        row("format|hm|2012-05-16T22:30:15.5|--device|region=de_DE,hour-format=24", "22:30");
        row("format|hm|2012-05-16 22:30|--device|region=de_DE,hour-format=12", "10:30\u202fPM");
        row("format|hm|2012-05-16T10:30+02:00|2012-05-16T10:30Z|--device|hour-format=24,region=en_GB", "10:30\n10:30");
        row("format|hmz|2012-05-16T10:30+02:00|2012-05-16T10:30-0530|--device|"
            "hour-format=24,region=en_GB,time-zone=Europe/London",
            "09:30 BST\n17:00 BST");
        row("format|hmz|2012-05-16T10:30|--device|hour-format=24,region=en_GB,time-zone=Asia/Tokyo", "10:30 GMT+9");
        row("format|yMdhms|20120903|20120903T1635|20120903T163502.5Z|20120903T163502+0530|Mon, 3 Sep 2012 16:35:02 "
            "+0000|"
            "03 sep 2012 16:35 GMT|3 Sep 2012 16:35 ut|30 Jun 2012 23:59:60 UTC|Sun,  02 Sep 2012 16:35:02 -0700 "
            "(PDT)|--device|hour-format=24,region=de_DE",
            "3.9.2012, 00:00:00\n3.9.2012, 16:35:00\n3.9.2012, 16:35:02\n3.9.2012, 16:35:02\n3.9.2012, 16:35:02\n"
            "3.9.2012, 16:35:00\n3.9.2012, 16:35:00\n30.6.2012, 23:59:59\n2.9.2012, 16:35:02");
        row("format|yMdhms|@1346690102|@-1.001|@0.9|@-62135596800|--device|hour-format=24,region=de_DE",
            "3.9.2012, 16:35:02\n31.12.1969, 23:59:58\n1.1.1970, 00:00:00\n3.1.1, 00:00:00"); // Julian
        row("format|yMdhm|@1346690100|--json|--device|hour-format=24,region=de_DE,time-zone=Asia/Tokyo",
            R"({"moment":"2012-09-04T01:35:00+09:00","text":"4.9.2012, 01:35"})");
        row("format|Hm|2012-05-16T10:30|--json|--device|hour-format=24,region=en_GB",
            R"({"moment":"2012-05-16T10:30:00","text":"10:30"})");

        row("format|hmz|2012-05-16T10:30Z|--device|hour-format=24,region=en_GB",
            qUtf8Printable("10:30 " + zoneName({}, QDateTime(), icu::Locale::getUK()))); // whatever the process's zone
        row("format|yMMMMd|2012-05-16|--locale|fr_FR|--device|region=de_DE", "16 mai 2012");
        row("format|hmz|2012-05-16T10:30Z|--locale|de_DE|--device|hour-format=24,region=en_GB,time-zone=Europe/Berlin",
            "12:30 MESZ");

        row("relative|--anchor|2012-05-16T10:30|--locale|de|2012-05-16T07:30|2012-05-15T09:00|--clock|24",
            "vor 3 Stunden\ngestern, 09:00");
        row("relative|--anchor|2012-05-16T10:30|--locale|de|2012-05-15T09:00|--device|hour-format=12",
            "gestern 9:00\u202fAM");
        row("relative|--anchor|2013-01-01T00:02|--locale|de|--wording|natural|--until|2013-01-01T00:02|"
            "2012-12-31T23:59:30|--clock|24|--device|time-zone=Europe/Berlin",
            "jetzt\t2013-01-01T00:03:00+01:00\ngestern, 23:59\t2013-01-02T00:00:00+01:00");
        row("relative|--anchor|2012-05-16T10:30|--locale|en|--until|2011-05-16", "May 2011\tnever");
        row("relative|--anchor|2012-05-16T10:30Z|--locale|en|--device|hour-format=24,time-zone=Asia/Tokyo|"
            "2012-05-16T05:25-05:00|Wed, 16 May 2012 00:30:00 +0200|2012-05-15T14:30Z|@1337157000.5|2012-05-16T18:30",
            "5 minutes ago\n12 hours ago\nyesterday 23:30\n1 hour ago\n1 hour ago");
        row("relative|--anchor|2012-05-16T10:30+02:00|--locale|en|--clock|24|2012-05-16T10:30|2012-05-16T01:30+02:00",
            "in 2 hours\nyesterday 23:30"); // of the process: UTC
        row("relative|--anchor|2012-05-16T10:30|--type|non-time-critical|2012-05-16T07:30|--device|region=zh_TW",
            "今天");
        row("relative|--anchor|2012-05-16T10:30|--locale|en|--json|2011-12-31|--device|time-zone=Europe/Berlin",
            R"({"moment":"2011-12-31T00:00:00+01:00","text":"December 2011"})");

        row("locales|de-at", "locale  script  phrases  English name      own name\n"
                             "de_AT   Latn    own      German (Austria)  Deutsch (\u00d6sterreich)");
        row("locales|--json|az_Cyrl_AZ",
            R"-({"english":"Azerbaijani (Cyrillic, Azerbaijan)","locale":"az_Cyrl_AZ",)-"
            R"-("native":"азәрбајҹан (Кирил, Азәрбајҹан)","phrases":"none","script":"Cyrl"})-");
        row("locales|*EMBU (|--json",
            R"-({"english":"Embu (Kenya)","locale":"ebu_KE","native":"Kĩembu (Kenya)","phrases":"some","script":"Latn"})-");
        row("locales|台灣", "locale      script  phrases  English name                   own name\n"
                            "zh_Hant_TW  Hant    own      Chinese (Traditional, Taiwan)  中文（繁體，台灣）\n"
                            "zh_TW       Hant    own      Chinese (Taiwan)               中文（台灣）");
        row("complete|perc", "percent\tFormat numbers as percentages.");
        row("complete|relative|--locale|de|--wording=n", "--wording=natural\t");
        row("complete|help|percent|--version", "--version\tShow the version.");
        row("complete|format|--locale|de_A", "de_AT\tGerman (Austria)");
        row("complete|format|--device|region=de_AT,time-zone=Europe/Berl", "region=de_AT,time-zone=Europe/Berlin\t");
        row("complete|device|--json|set|region=de_AT|h", "hour-format=\t");
        row("device|--device|hour-format=24,region=de_DE", "hour-format  24\ntime-zone    not set\nregion       de_DE");
        row("device|get|time-zone|--device|time-zone=Asia/Tokyo", "Asia/Tokyo");
    }

    void answers()
    {
        const auto [output] = cells<QString>();
        const SettingsRoot root;
        const Result result = run(QTest::currentDataTag());
        QCOMPARE(result.errors, QString());
        QCOMPARE(result.output, output + '\n');
        QCOMPARE(result.status, 0);
    }

    void refusals_data()
    {
        const NamedRow<int, QString> row;
        row("", 2, "no command given; see 'zel-i18n --help'");
        row("frobnicate", 2, "unknown command 'frobnicate'; see 'zel-i18n --help'");
        row("formats|--frobnicate", 2, "unknown option 'frobnicate'; see 'zel-i18n formats --help'");
        row("formats|--locale", 2, "missing value after '--locale'; see 'zel-i18n formats --help'");
        row("formats|de_DE", 2,
            "unexpected argument 'de_DE'; use --locale for a locale; see 'zel-i18n formats --help'");
        row("percent", 2, "no value given; see 'zel-i18n percent --help'");
        row("percent|--min|-1|1", 2, "--min takes a number from 0 to 340, not '-1'; see 'zel-i18n percent --help'");
        row("percent|--locale|de|--locale|fr|1", 2, "--locale was given more than once; see 'zel-i18n percent --help'");
        row("format|y|2012-05-16|-", 2,
            "'-' for standard input cannot be combined with other moments; "
            "see 'zel-i18n format --help'");
        row("watch|y|2012-05-16|2012-05-17", 2,
            "one moment at most, not also '2012-05-17'; see 'zel-i18n watch --help'");
        row("relative|--clock|13|2012-05-16", 2,
            "--clock takes 12, 24, locale, user, not '13'; see 'zel-i18n relative --help'");
        row("device|put", 2, "'put' is neither get, set nor unset; see 'zel-i18n device --help'");
        row("device|set|hour-format", 2, "'hour-format' is not of the form KEY=VALUE; see 'zel-i18n device --help'");
        row("device|unset|clock", 2,
            "unknown setting 'clock'; settings: hour-format, time-zone, region; see 'zel-i18n device --help'");
        row("format|y|--device|region=de_DE,region=fr_FR", 2,
            "region was given more than once; see 'zel-i18n format --help'");

        row("gallery", 2, "no file given with --html, --tsv or --compare; see 'zel-i18n gallery --help'");
        row("gallery|--html|-", 2, "--html takes the name of a file; see 'zel-i18n gallery --help'");
        row("gallery|--compare|x|--tsv|-", 2,
            "--compare writes to standard output, so --tsv takes the name of a file; see 'zel-i18n gallery --help'");
        row("gallery|--compare|/dev/null", 1, "'/dev/null' is not a table written with --tsv");
        row("gallery|--tsv|x|--device|region=de_DE", 2, "unknown option 'device'; see 'zel-i18n gallery --help'");

        row("gallery|--html|/nowhere/x|--locale|de_DE", 1, "cannot write '/nowhere/x': No such file or directory");
        row("locales|xq", 1, "no locale matches 'xq'");
        row("locales|de|fr", 2, "one pattern at most, not also 'fr'; see 'zel-i18n locales --help'");
        row("locales|--device|region=de_DE", 2, "unknown option 'device'; see 'zel-i18n locales --help'");
        row("formats|--locale|xx_YY", 1, "unknown locale 'xx_YY'");
        row("formats|--locale|de_XX", 1, "unknown locale 'de_XX'"); // Qt alone would answer with Germany
        row("formats|--locale|zh_Latn_TW", 1, "unknown locale 'zh_Latn_TW'");
        for (const char* const number : {"nan", "-nan", "1,5"}) {
            row(QByteArray("percent|").append(number).constData(), 1,
                QByteArray("'").append(number).append("' is not a number such as 0.256").constData());
        }
        row("percent|--locale|-5|1", 1, "unknown locale '-5'");
        row("help|frobnicate", 2, "unknown command 'frobnicate'; see 'zel-i18n --help'");
        row("help|format|percent", 2, "one command at most, not also 'percent'; see 'zel-i18n --help'");
        row("format|foo!", 1, "'foo!' is not a skeleton such as yMMMd or hm");
        row("format|y|--device|hour-format=13", 1, "hour-format is 12 or 24, not '13'");
        row("format|y|--device|time-zone=Mars/Base", 1, "unknown time zone 'Mars/Base'");
        row("device|get|region", 1, "region is not set");
        for (const char* const moment : {"@-62135596800.001", "@253402300800", "@99999999999999999999"}) {
            row(QByteArray("format|y|").append(moment).constData(), 1,
                QByteArray("'").append(moment).append("' is outside the years 1 to 9999").constData());
        }
        for (const char* const moment :
             {"2012-02-30", "2012-5-16", "2012-05-16T24:00", "2012-05-16T10:30+15:00", "2012-05-16T10:30Zx",
              "2012-05-16T", "2012-05-16Z", "0000-01-01", "2012-05-16T10:30:00.", "2012-05-16T10:30:61", "2012-0516",
              "20120516T10:30", "@", "@1e5", "@1.", "Tue, 16 May 2012 10:30 +0000", "16 May 2012 10:30",
              "16 Foo 2012 10:30 GMT", "32 May 2012 10:30 GMT"}) {
            row(QByteArray("format|y|2012-05-16|").append(moment).constData(), 1,
                QByteArray("'")
                    .append(moment)
                    .append("' is not a moment such as 2012-09-03 or 2012-09-03T10:30:00+02:00")
                    .constData());
        }
    }

    void refusals()
    {
        const auto [status, error] = cells<int, QString>();
        const SettingsRoot root;
        const Result result = run(QTest::currentDataTag());
        QCOMPARE(result.status, status);
        QCOMPARE(result.errors, "zel-i18n: " + error + '\n');
        QCOMPARE(result.output, QString());
    }

    void environments_data()
    {
        const NamedRow<QString> row;
        row("", "C, as neither LC_ALL, LC_TIME nor LANG is set");
        row("LC_ALL=C", "C, from LC_ALL");
        row("LC_ALL=de_DE.ISO-8859-1", "de_DE, from LC_ALL");
        row("LC_TIME=fr_CA LC_ALL= LANG=C.UTF-8", "fr_CA, from LC_TIME");
    }

    // No message about a character set, and the region of the environment is kept.
    void environments()
    {
        const auto [region] = cells<QString>();
        const Result result = Child(QStringLiteral("env"), QStringLiteral("-i %1 " ZEL_TOOL " doctor")
                                                               .arg(QLatin1String(QTest::currentDataTag()))
                                                               .split(' ', Qt::SkipEmptyParts))
                                  .finish();
        QCOMPARE(result.errors, QString());
        QVERIFY2(result.output.contains(QLatin1String(" region           ") + region), qPrintable(result.output));
    }

    void help()
    {
        const Result all = run("--help");
        QCOMPARE(all.status, 0);
        for (const char* const name :
             {"formats", "format", "relative", "percent", "watch", "locales", "device", "doctor"}) {
            QVERIFY(all.output.contains(QLatin1String("\n  ") + QLatin1String(name) + QLatin1Char(' ')));
            const Result one = run(QByteArray(name).append("|--help").constData());
            QCOMPARE(one.status, 0);
            QVERIFY(one.output.startsWith(QLatin1String("Usage: zel-i18n ") + QLatin1String(name)));
            QVERIFY(one.output.contains(QLatin1String("\nExamples:\n  zel-i18n ")));
            QCOMPARE(run(QByteArray("help|").append(name).constData()).output, one.output);
        }
        QCOMPARE(run("help|help").output, all.output);
        for (const char* const version : {"--version", "-V"}) {
            QCOMPARE(run(version).output, QStringLiteral("zel-i18n " ZEL_VERSION "\n"));
        }
    }

    void json_data()
    {
        const NamedRow<QString, int> row;
        row("formats|--json|--locale|ja_JP|--locale|he_IL", "formats|locale|moment", 2);
        row("doctor|--json", "advice|status|subject|text", 12);
        row("relative|--table|--json|--locale|pl|--locale|hi", "anchor|distance|locale|moment|text|type", 42);
    }

    void json()
    {
        const auto [keys, count] = cells<QString, int>();
        const SettingsRoot root;
        const Result result = run(QTest::currentDataTag());
        QCOMPARE(result.status, 0);
        const QStringList lines = result.output.split(QLatin1Char('\n'));
        QCOMPARE(lines.last(), QString());
        QCOMPARE(static_cast<int>(lines.size()) - 1, count);
        for (const QString& text : lines.mid(0, lines.size() - 1)) {
            QCOMPARE(QJsonDocument::fromJson(text.toUtf8()).object().keys(), wordsOf(keys.toUtf8()));
        }
    }

    void tableHasEverySlot()
    {
        const SettingsRoot root;
        const Result result = run("relative|--table|--locale|en_US|--clock|24|--json");
        QCOMPARE(result.status, 0);
        QStringList texts;
        for (const QString& line : result.output.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
            texts.append(QJsonDocument::fromJson(line.toUtf8()).object().value(QStringLiteral("text")).toString());
        }
        const QStringList timeCritical =
            wordsOf("September 2011|Aug 30|Sat 10:30|yesterday 10:30|3 hours ago|5 minutes ago|"
                    "in 5 minutes|in 3 hours|tomorrow 10:30|Wed 10:30|Sep 7|September 2013");
        QCOMPARE(texts,
                 timeCritical + wordsOf("September 2011|Aug 30|Saturday|yesterday|today|tomorrow|Wednesday|Sep 7|"
                                        "September 2013"));
    }

    void columnsAreAligned()
    {
        const SettingsRoot root;
        qputenv("TZ", "Asia/Tokyo"); // of the process: a device without a time zone has GMT
        QVERIFY(run("formats|--json|--device|region=de_DE").output.contains(QLatin1String("+00:00")));
        qputenv("TZ", "UTC");
        const QStringList formats =
            run("formats|--locale|ja_JP|--at|2012-05-16T15:30|--device|hour-format=24").output.split(QLatin1Char('\n'));
        QCOMPARE(formats.at(0), QStringLiteral("ja_JP  Japanese (Japan)"));
        // 年, 月, 日, 時, 分 and 秒 are two columns wide each.
        QCOMPARE(formats.at(3), QString::fromUtf8("date       long    yyyy年M月d日                    2012年5月16日"));
        QCOMPARE(formats.at(5), QString::fromUtf8("time       short   h:mm                            15:30"));
        const QStringList table = run("relative|--table|--type|time-critical|--clock|12|--locale|ja|--locale|en")
                                      .output.split(QLatin1Char('\n'));
        QCOMPARE(table.at(5), QString::fromUtf8("3 hours before    2012-09-03 07:30  3 時間前        3 hours ago"));
        const Result inSpring =
            run("relative|--table|--anchor|2012-03-25T04:30|--type|time-critical|--locale|en|--device|"
                "time-zone=Europe/Berlin");
        QVERIFY2(inSpring.output.contains("2012-03-25 01:30  3 hours ago\n"), qPrintable(inSpring.output));
        QCOMPARE(table.at(2), QString::fromUtf8("4 days before     2012-08-30 10:30  8月30日         Aug 30"));
    }

    void invalidLinesAreReported()
    {
        const SettingsRoot root;
        const Result percentages = run("percent|-|--locale|en_US", "\xEF\xBB\xBF"
                                                                   "0.5\nhalf\n-1\r\n");
        QCOMPARE(percentages.output, QStringLiteral("50%\n-100%\n"));
        QCOMPARE(percentages.errors, QStringLiteral("zel-i18n: line 2: 'half' is not a number such as 0.256\n"));
        QCOMPARE(percentages.status, 1);

        const Result objects = run("percent|-|--json|--locale|en_US", "0.5\nhalf\n");
        QCOMPARE(objects.output,
                 QStringLiteral(R"({"locale":"en_US","text":"50%","value":0.5})"
                                "\n"
                                R"({"error":"'half' is not a number such as 0.256","input":"half","line":2})"
                                "\n"));
        QCOMPARE(objects.errors, percentages.errors);

        const QByteArray longLine = "2012-05-16" + QByteArray(300000, ' ') + '1';
        const QByteArray input = " 2012-05-16\t\r\nyesterday\n\n" + longLine + "\n2012-02-29T10:30\n2011-02-29";
        const Result result = run("format|yMMMd|-|--device|region=en_US", input);
        QCOMPARE(result.output, QStringLiteral("May 16, 2012\nFeb 29, 2012\n"));
        const QStringList errors = result.errors.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(errors.size(), 4);
        const QString reason = QStringLiteral(" is not a moment such as 2012-09-03 or 2012-09-03T10:30:00+02:00");
        QCOMPARE(errors.at(0), QStringLiteral("zel-i18n: line 2: 'yesterday'") + reason);
        QCOMPARE(errors.at(1), QStringLiteral("zel-i18n: line 3: ''") + reason);
        QVERIFY(errors.at(2).startsWith(QLatin1String("zel-i18n: line 4: '2012-05-16 ")));
        QVERIFY(errors.at(2).size() < 200);
        QCOMPARE(errors.at(3), QStringLiteral("zel-i18n: line 6: '2011-02-29'") + reason);
        QCOMPARE(result.status, 1);
        const QStringList ordered = run("relative|-|--json|--locale|en|--anchor|2012-05-16", "x\n2011-05-16\ny\n")
                                        .output.split(QLatin1Char('\n'));
        QVERIFY(ordered.at(0).contains(QLatin1String(R"("line":1)")));
        QVERIFY(ordered.at(1).contains(QLatin1String("May 2011")));
        QVERIFY(ordered.at(2).contains(QLatin1String(R"("line":3)")));
    }

    void answersLineByLine()
    {
        const SettingsRoot root;
        Running relative("relative|-|--anchor|2012-05-16T10:30|--locale|en");
        relative.feed("2012-05-16T10:25\n");
        QCOMPARE(relative.line(), QStringLiteral("5 minutes ago"));
        relative.feed("2012-05-16T13:30\n");
        QCOMPARE(relative.line(), QStringLiteral("in 3 hours"));
        QCOMPARE(relative.finish().status, 0);
    }

    void pipes_data()
    {
        const NamedRow<QString, QString> row;
        row("ends quietly when nobody reads",
            R"(yes 2012-05-16 | "$0" relative - --locale en --anchor 2012-05-16 | head -n 1; echo ${PIPESTATUS[1]})",
            "in 0 minutes\n0\n");
        row("complains in the order of the lines",
            R"(printf '2012-05-16\nyesterday\n2012-05-17\n' | "$0" format yMMMd - --locale en_US 2>&1 | cut -c 1-27)",
            "May 16, 2012\nzel-i18n: line 2: 'yesterda\nMay 17, 2012\n");
        // Only standard error is a terminal.
        row("shows how far a file is read",
            R"(cd "$TMPDIR" && echo 0.5 >values && "$0" percent - --locale en_US <values 2>errors >texts
               script -qec "$0 percent - --locale en_US <values >texts" /dev/null | tr '\r\033' '<^'; cat errors texts)",
            QStringLiteral("<^[K[%1]   0 % <^[K[%2] 100 % <^[K50%\n")
                .arg(QString(40, QLatin1Char('.')), QString(40, QLatin1Char('#'))));
    }

    void pipes()
    {
        const auto [line, output] = cells<QString, QString>();
        const SettingsRoot root;
        Child shell(QStringLiteral("bash"), {QStringLiteral("-c"), line, QStringLiteral(ZEL_TOOL)});
        const Result result = shell.finish();
        QCOMPARE(result.output, output);
        QCOMPARE(result.errors, QString());
    }

    void deviceRoundTrip()
    {
        const SettingsRoot root;
        QVERIFY(root.write(settings,
                           "@settings\nringer::loud\\nand clear\nhourFormat:n:12\nvolume:n:0.5\nmuted:b:false\n"));
        const mode_t umask = ::umask(077);
        const Result set = run("device|set|hour-format=24|time-zone=Europe/Berlin|region=sr_Latn_RS");
        ::umask(umask);
        QCOMPARE(set.errors, QString());
        QCOMPARE(set.status, 0);
        QCOMPARE(run("device").output,
                 QStringLiteral("hour-format  24\ntime-zone    Europe/Berlin\nregion       sr_Latn_RS\n"));
        // The process is in UTC: a moment without an offset is in the zone of the device.
        QCOMPARE(run("relative|--locale|en|--anchor|2012-03-25T01:30|--until|2012-03-25T08:00").output,
                 QStringLiteral("in 6 hours\t2012-03-25T03:00:00+02:00\n"));
        QCOMPARE(textOf(root.file(settings)),
                 QByteArray("@settings\nhourFormat:n:24\nmuted:b:false\nringer::loud\\nand clear\nvolume:n:0.5\n"));
        QCOMPARE(textOf(root.file("/pps/services/confstr/_CS_TIMEZONE")),
                 QByteArray("@_CS_TIMEZONE\n_CS_TIMEZONE::Europe/Berlin\n"));

        for (const char* const object :
             {"/pps/services/confstr/_CS_TIMEZONE", "/pps/services/confstr", "/pps/services"}) {
            QVERIFY(QFileInfo(root.file(QLatin1String(object))).permission(QFile::ReadOther)); // the umask is 077
        }

        QCOMPARE(run("device|unset|hour-format|time-zone").status, 0);
        QCOMPARE(textOf(root.file(settings)),
                 QByteArray("@settings\nmuted:b:false\nringer::loud\\nand clear\nvolume:n:0.5\n"));
        QCOMPARE(run("device|--json").output,
                 QStringLiteral("{\"hour-format\":null,\"region\":\"sr_Latn_RS\",\"time-zone\":null}\n"));
        QCOMPARE(QDir(root.file("/pps/system")).entryList(QDir::Files | QDir::Hidden),
                 QStringList({QStringLiteral("locale"), QStringLiteral("settings")}));
    }

    void writersWaitForEachOther()
    {
        const SettingsRoot root;
        QVERIFY(root.setClock("12"));
        const QByteArray directory = QFile::encodeName(root.file("/pps/system"));
        const int lock = ::open(directory.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        QCOMPARE(::flock(lock, LOCK_SH), 0);
        Running set("device|set|hour-format=24");
        QVERIFY(!set.process().waitForFinished(300));
        QVERIFY(root.write(settings, "@settings\nringer::loud\n"));
        ::close(lock);
        QCOMPARE(set.finish().status, 0);
        QCOMPARE(textOf(root.file(settings)), QByteArray("@settings\nhourFormat:n:24\nringer::loud\n"));

        QVERIFY(QDir(root.file("/pps")).removeRecursively() && QDir().mkdir(root.file("/pps")));
        QVERIFY(QFile::link(QStringLiteral("system"), root.file("/pps/system")));
        expectRefusal("device|set|hour-format=24", root.file("/pps/system: Too many levels of symbolic links"));
    }

    void terminalsGetNoControlCharacters()
    {
        const SettingsRoot root;
        QVERIFY(root.setRegion("de\x1b[2J\\nDE\u202e"));
        QCOMPARE(run("device|get|region").output, QStringLiteral("de?[2J?DE?\n"));
        const QString value = QStringLiteral("de?[2J?DE?");
        QVERIFY(run("device").output.endsWith(value + QLatin1Char('\n')));
        QVERIFY(run("doctor").output.contains(QLatin1String("region           ") + value + QLatin1String(", from ")));
        QVERIFY(root.write("/\x1b", "no directory"));
        qputenv("ZEL_PPS_ROOT", QFile::encodeName(root.file("/\x1b")));
        expectRefusal("device|get|region", root.file("/?/pps/system/locale: Not a directory"));
    }

    void machineWithoutSettings()
    {
        if (QFileInfo::exists(QStringLiteral("/pps"))) {
            return; // this machine has settings
        }
        qunsetenv("ZEL_PPS_ROOT");
        const auto error = QStringLiteral("this machine has no /pps; --create makes it, with %1");
        expectRefusal("device|set|hour-format=24|region=de_DE",
                      error.arg(QLatin1String("/pps/system/settings, /pps/system/locale")));
        QCOMPARE(run("device|unset|region").status, 0);
        QVERIFY(!QFileInfo::exists(QStringLiteral("/pps")));
        QVERIFY(run("doctor").output.contains(QLatin1String("'device set --create hour-format=24' sets it")));
    }

    void nothingIsWrittenBeforeAllIsChecked()
    {
        const SettingsRoot root;
        QVERIFY(root.setClock("12"));
        QCOMPARE(run("device|set|hour-format=24|region=xx").status, 1);
        QVERIFY(root.write("/pps/system/locale", "garbage\n"));
        QCOMPARE(run("device|set|hour-format=24|region=de_DE").status, 1);
        QCOMPARE(run("device|get|hour-format").output, QStringLiteral("12\n"));
    }

    void tornObject()
    {
        const SettingsRoot root;
        QVERIFY(root.write(settings, "@settings\nringer::loud\nhourFormat:n:twelve\n"));
        const QString reason = root.file(settings) + QStringLiteral(": line 3: not a number");
        for (const char* const line :
             {"device", "format|hm", "formats|--locale|de", "relative|2012-05-16", "watch|hm"}) {
            expectRefusal(line, reason);
        }
        QCOMPARE(run("percent|1").status, 0); // asks for the region only
        expectRefusal("device|set|hour-format=24", reason + QStringLiteral("; --replace overwrites it"));
        QCOMPARE(run("device|set|--replace|hour-format=24").status, 0);
        QCOMPARE(textOf(root.file(settings)), QByteArray("@settings\nhourFormat:n:24\n"));
    }

    void rootThatCannotBeRead()
    {
        const SettingsRoot root;
        QVERIFY(root.write("/file", "no directory"));
        const QString file = root.file("/file");
        qputenv("ZEL_PPS_ROOT", QFile::encodeName(file));
        for (const char* const line : {"format|hm", "device|get|hour-format", "device|set|--replace|hour-format=24"}) {
            expectRefusal(line, file + settings + QStringLiteral(": Not a directory"));
        }
        QCOMPARE(run("doctor").status, 1);
        QCOMPARE(run("percent|--locale|en|1").output, QStringLiteral("100%\n")); // needs no settings
    }

    void doctorReportsProblems()
    {
        const SettingsRoot root;
        const Result bare = run("doctor");
        QCOMPARE(bare.status, 0);
        const QString library =
            QFileInfo(QStringLiteral(ZEL_TOOL)).path() + QLatin1String("/../lib/libzelutilityi18n.so");
        QVERIFY2(bare.output.startsWith(QStringLiteral("ok    library          " ZEL_VERSION ", %1, built by ")
                                            .arg(QFileInfo(library).canonicalFilePath())),
                 qPrintable(bare.output));
        QVERIFY(bare.output.contains(QStringLiteral("\nok    Qt               %1, built with " QT_VERSION_STR "\n")
                                         .arg(QLatin1String(qVersion()))));
        QVERIFY(bare.output.contains(QLatin1String("ok    relative dates   phrases in place: 5 minutes ago\n")));
        QVERIFY(bare.output.contains(root.file(settings) + QLatin1String(": missing\n")));
        QVERIFY(bare.output.contains(QLatin1String("note  region           C, from LC_ALL")));

        QVERIFY(root.setClock("25"));
        QVERIFY(root.setTimeZone("Asia/Tokyo"));
        QVERIFY(root.write("/pps/system/locale", "@locale\nregion::de_DE"));
        const Result wrong = run("doctor");
        QCOMPARE(wrong.status, 1);
        QVERIFY(wrong.output.contains(QStringLiteral("hour-format      25, from %1: hour-format is 12 or 24, not '25'")
                                          .arg(root.file(settings))));
        QVERIFY(wrong.output.contains(QLatin1String("/pps/system/locale: line 2: no newline at the end")));
        QVERIFY(wrong.output.contains(QLatin1String("ok     time-zone        Asia/Tokyo, from ") + root.path()));

        qputenv("ICU_DATA", "/nowhere");
        const Result noPhrases = run("doctor|--device|region=de_DE");
        qunsetenv("ICU_DATA");
        QCOMPARE(noPhrases.status, 1);
        QVERIFY(noPhrases.output.contains(QLatin1String("wrong  relative dates   no phrases in ICU's data")));
        QVERIFY(noPhrases.output.contains(QLatin1String("/nowhere, from ICU_DATA")));
    }

    void doctorFindsOtherVersions()
    {
        QProcessEnvironment others = QProcessEnvironment::systemEnvironment();
        others.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(ZEL_OTHER_VERSIONS));
        others.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("verify_asan_link_order=0"));
        const Result result = Child(QStringLiteral(ZEL_TOOL), {QStringLiteral("doctor")}, others).finish();
        QCOMPARE(result.status, 1);
        for (const char* const line :
             {"\nwrong  Qt               99.1.0, built with " QT_VERSION_STR "; build the library for this version\n",
              "built with " U_ICU_VERSION "; build the library for this version\n"}) {
            QVERIFY2(result.output.contains(QLatin1String(line)), qPrintable(result.output));
        }
    }

    void watchFollowsTheDevice()
    {
        const SettingsRoot root;
        QVERIFY(root.setClock("12") && root.setTimeZone("Europe/London") && root.setRegion("en_GB"));
        Running german("watch|hmz|2012-05-16T14:30Z|--locale|de_DE");
        QCOMPARE(german.line(), QString::fromUtf8("3:30\u202fPM GMT+1"));
        Running watch("watch|hmz|2012-05-16T14:30Z");
        QCOMPARE(watch.line(), QString::fromUtf8("3:30\u202fpm BST"));
        constexpr int second = 1000;
        QCOMPARE(run("device|set|hour-format=24").status, 0);
        QCOMPARE(watch.line(second), QStringLiteral("15:30 BST"));
        QCOMPARE(german.line(second), QStringLiteral("15:30 GMT+1")); // the other settings are still the device's
        german.signal(SIGTERM);
        QCOMPARE(german.finish().status, 0);
        QCOMPARE(run("device|set|time-zone=Europe/Berlin").status, 0);
        QCOMPARE(watch.line(second), QStringLiteral("16:30 CEST"));
        QCOMPARE(run("device|set|region=de_DE").status, 0);
        QCOMPARE(watch.line(second), QStringLiteral("16:30 MESZ"));

        // Another attribute or a broken object does not change the clock.
        QVERIFY(root.write(settings, "@settings\nhourFormat:n:24\nvolume:n:1\n"));
        QVERIFY(root.rewrite(settings, "@settings\nhourFor"));
        QCOMPARE(watch.line(second), QString());
        QVERIFY(root.setClock("12"));
        QCOMPARE(watch.line(second), QString::fromUtf8("4:30\u202fPM MESZ"));

        QVERIFY(root.remove(settings));
        QVERIFY(root.setClock("24"));
        QString line = watch.line(second);
        const bool sawNoObject = line.startsWith(QLatin1String("4:30")); // on a slow machine
        if (sawNoObject) {
            line = watch.line(second);
        }
        QCOMPARE(line, QStringLiteral("16:30 MESZ"));

        watch.signal(SIGTERM);
        const Result result = watch.finish();
        const QStringList errors = result.errors.split(QLatin1Char('\n'));
        QCOMPARE(errors.at(0), QStringLiteral("zel-i18n: void zel::utility::i18n::PpsManager::onPpsUpdate() failed to "
                                              "decode PPS payload from /pps/system/settings"));
        QCOMPARE(errors.size(), sawNoObject ? 3 : 2);
        QCOMPARE(result.status, 0);
        QCOMPARE(result.output, QString());
    }

    void watchEndsOnSignal()
    {
        for (const int number : {SIGINT, SIGTERM}) {
            Running watch("watch|yMd|--device|region=en_US");
            QVERIFY(!watch.line().isEmpty());
            QCOMPARE(devices().size(), 1);
            watch.signal(number);
            const Result result = watch.finish();
            QCOMPARE(result.errors, QString());
            QCOMPARE(result.status, 0);
            QCOMPARE(devices(), QStringList());
        }
    }

    void simulatedDeviceLeavesNothing()
    {
        const SettingsRoot root;
        // The user's device is neither changed nor read.
        QVERIFY(root.setClock("12"));
        QCOMPARE(run("device|set|region=fr_FR|--device|hour-format=24").status, 0);
        QCOMPARE(run("device").output, QStringLiteral("hour-format  12\ntime-zone    not set\nregion       not set\n"));

        Running format("format|y|-|--device|region=en_US");
        format.feed("2012-05-16\n");
        QCOMPARE(format.line(), QStringLiteral("2012"));
        format.signal(SIGINT);
        QVERIFY(format.process().waitForFinished(Child::timeoutMs));
        QCOMPARE(format.process().exitStatus(), QProcess::CrashExit);
        QCOMPARE(format.process().exitCode(), SIGINT);
        QCOMPARE(devices(), QStringList());
    }

    void galleryShowsBothClocks()
    {
        const SettingsRoot root;
        QVERIFY(root.setClock("12"));
        const QString file = m_temporary.filePath("gallery");
        const QByteArray line = "gallery|--locale|de_DE|--locale|th_TH|--locale|sq_AL|--locale|ar_EG|--html|" +
                                file.toUtf8() + ".html|--tsv|" + file.toUtf8() + ".tsv";
        const Result result = run(line.constData());
        QCOMPARE(result.errors, QString());
        QCOMPARE(result.output, QStringLiteral("4 locales, 2 of them with a mark\n"));
        QCOMPARE(devices(), QStringList());

        const QByteArray table = textOf(file + QStringLiteral(".tsv"));
        for (const char* const row :
             {"de_DE\t12-hour clock\ttime\tshort\th:mm AP\t10:30 PM\t\n",
              "de_DE\t24-hour clock\ttime\tshort\thh:mm\t22:30\t\n",
              "de_DE\t24-hour clock\tcustom\tyMMMMEEEEdhm\tyMMMMEEEEdhm\tMontag, 3. September 2012 um 22:30\t\n",
              "de_DE\t24-hour clock\tpercentage\t0.256\t\t25,6\u00a0%\t\n",
              "ar_EG\t12-hour clock\trelative, minutes\t11 minutes before\t\tقبل ١١ دقيقة\t\n",
              "de_DE\t24-hour clock\trelative, on 1 January, natural wording\t31 minutes before\t\tgestern, 23:59\t\n",
              "de_DE\t24-hour clock\trelative, time-critical\t1 day before\t\tgestern, 10:30\t\n"}) {
            QVERIFY2(table.contains(row), row);
        }
        QVERIFY(table.contains("\tQt's own pattern: ICU's has a field that Qt lacks\n"));
        QVERIFY(table.contains("has encountered an unsupported time format!\n"));
        QCOMPARE(table.count('\n'), 1 + 4 * 2 * (12 + 1 + 3 + 12 + 9 + 13 + 3 + 3));

        const QString piped = run("gallery|--locale|de_DE|--tsv|/dev/stdout").output;
        QVERIFY2(piped.startsWith(QLatin1String("locale\tclock\t")), qPrintable(piped));
        QCOMPARE(run("gallery|--locale|de_DE|--locale|th_TH|--locale|sq_AL|--locale|ar_EG|--tsv|-").output.toUtf8(),
                 table);

        const QByteArray page = textOf(file + QStringLiteral(".html"));
        QVERIFY(page.contains("<section id=\"ar_EG\" lang=\"ar-EG\" dir=rtl>"));
        QVERIFY(page.contains("<section id=\"de_DE\" lang=\"de-DE\" dir=ltr>"));
        QVERIFY(page.contains("<tr class=\"mark\">"));
        QVERIFY(page.contains("<bdi>1 year before</bdi>")); // otherwise "year before 1" from right to left
        QVERIFY(page.contains("Qt's own pattern: ICU's has"));
    }

    void galleryComparesWithAnOlderTable()
    {
        QByteArray older = run("gallery|--tsv|-|--locale|de_DE|--locale|en_US").output.toUtf8();
        const QString page = m_temporary.filePath("page.html");
        QFile file(m_temporary.filePath("older.tsv"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        older.replace("gestern, 10:30", "damals, 10:30").replace("\t50", "\t5O").replace("\thh:mm\t", "\tHH:mm\t");
        older.replace("en_US\t12-hour clock\tcustom", "en_US\t12-hour clock\tother").replace("\n", "\r\n");
        QVERIFY(file.write(older) > 0);
        file.close();
        const QByteArray line =
            "gallery|--locale|en_US|--locale|de_DE|--locale|sv|--compare|" + file.fileName().toUtf8();
        const QString figures = QStringLiteral("3 locales, 0 of them with a mark\n"
                                               "3 of 223 texts differ, in 2 of 2 locales\n"
                                               "  relative, time-critical  1\n"
                                               "  time                     2\n"
                                               "1 text not in the older table\n"
                                               "1 text only in the older table\n"
                                               "1 locale not in the older table: sv\n");
        QCOMPARE(
            run(line.constData()).output,
            QStringLiteral("en_US, 24-hour clock, time, short\n  before  22:30  (HH:mm)\n  now     22:30  (hh:mm)\n"
                           "de_DE, 24-hour clock, time, short\n  before  22:30  (HH:mm)\n  now     22:30  (hh:mm)\n"
                           "de_DE, 24-hour clock, relative, time-critical, 1 day before\n"
                           "  before  damals, 10:30\n  now     gestern, 10:30\n") +
                figures);
        QCOMPARE(run((line + "|--html|" + page.toUtf8()).constData()).output, figures);
        QVERIFY(textOf(page).contains("<td>gestern, 10:30<del><bdi>before: </bdi>damals, 10:30</del>"));
        QVERIFY(run((line + "|--json").constData())
                    .output.contains(
                        QLatin1String(R"("time":2},"differentLocales":2,"goneLocales":[],"goneTexts":1,"locales":2,)"
                                      R"("newLocales":["sv"],"newTexts":1,)")));
    }

private:
    // The existing throw-away devices.
    QStringList devices() const { return QDir(m_temporary.path()).entryList({QStringLiteral("zel-i18n-*")}); }

    QTemporaryDir m_temporary;
};

QTEST_GUILESS_MAIN(ToolTest)
#include "tst_tool.moc"
