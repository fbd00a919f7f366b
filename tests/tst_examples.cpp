// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "support/Child.h"
#include "support/Rows.h"
#include "support/SettingsRoot.h"
#include <QtTest/QtTest>

namespace {

// Replaces no-break spaces by ordinary ones.
QString withPlainSpaces(QString output)
{
    return output.replace(QChar(0xa0), QLatin1Char(' ')).replace(QChar(0x202f), QLatin1Char(' '));
}

// A running example, at a chosen time if it needs one.
class Example : public Child
{
public:
    Example(const QString& name, const QStringList& arguments, const char* start = nullptr)
        : Child(QStringLiteral(ZEL_EXAMPLES "/example_") + name, arguments, startingAt(start))
    {
    }

    // The next lines, sorted.
    QString lines(int count)
    {
        QStringList lines;
        while (lines.size() < count) {
            lines.append(withPlainSpaces(line()));
        }
        lines.sort();
        return lines.join(QLatin1Char('|'));
    }

    // All lines of an example that ends by itself, with status 0.
    QStringList allLines()
    {
        const Result result = finish();
        return result.status == 0 ? withPlainSpaces(result.output).trimmed().split(QLatin1Char('\n'))
                                  : QStringList(QStringLiteral("(failed)"));
    }

private:
    static QProcessEnvironment startingAt(const char* time)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        if (time != nullptr) {
            environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(ZEL_FAKETIME));
            environment.insert(QStringLiteral("FAKETIME"), QString::fromLatin1(time));
            environment.insert(QStringLiteral("FAKETIME_DONT_FAKE_MONOTONIC"), QStringLiteral("1"));
        }
        return environment;
    }
};

} // namespace

// The output of the examples on a British device with a 24-hour clock.
class tst_Examples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QVERIFY(m_root.setClock("24"));
        QVERIFY(m_root.setTimeZone("Europe/Berlin"));
        QVERIFY(m_root.setRegion("en_GB"));
    }

    void output_data()
    {
        const NamedRow<QStringList, QString> row;
        row("console", {}, R"(Patterns of France
  lundi 3 septembre 2012
  22:30
  3 sept. 2012, 22:30:00
Patterns of the user's region
  d MMMM yyyy
  hh:mm:ss
  dd/MM/yyyy, hh:mm
Percentages
  25,6 %
  50.00%
Custom dates
  yMMMMEEEEd: Monday, 3 September 2012
  hm: 22:30
Relative dates
  5 minutes ago
  yesterday 22:30
  on a 12-hour clock: yesterday 10:30 pm
  in French: il y a 5 minutes
  in the user's region again: 5 minutes ago
  in days, as type 2: today
  as of now: today)");
        row("threads", {}, R"(en_GB  200 texts  3 Sept 2012  5 minutes ago
de_DE  200 texts  3 Sept 2012  vor 5 Minuten
fr_FR  200 texts  3 Sept 2012  il y a 5 minutes
pl_PL  200 texts  3 Sept 2012  5 minut temu
ar_EG  200 texts  3 Sept 2012  قبل ٥ دقائق
ja_JP  200 texts  3 Sept 2012  5 分前
he_IL  200 texts  3 Sept 2012  לפני 5 דקות
th_TH  200 texts  3 Sept 2012  5 นาทีที่ผ่านมา)");
    }
    void output()
    {
        const auto [arguments, expected] = cells<QStringList, QString>();
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        QCOMPARE(Example(name, arguments).allLines(), expected.split(QLatin1Char('\n')));
    }

    void listsFollowTimeAndDevice_data()
    {
        const NamedRow<QString> row;
        row("messages", "messages");
        if (ZEL_HAS_QUICK) {
            row("quick", "quick");
        }
    }
    void listsFollowTimeAndDevice()
    {
        if (qstrlen(ZEL_FAKETIME) == 0) {
            QSKIP("libfaketime is not installed");
        }
        const auto [name] = cells<QString>();
        Example evening(name, {QStringLiteral("--print")}, "@2012-09-03 21:25:50");
        Example midnight(name, {QStringLiteral("--print")}, "@2012-09-03 23:59:50");
        QCOMPARE(evening.lines(3), QStringLiteral("1: 5 minutes ago|2: 3 hours ago|3: yesterday 21:25"));
        QCOMPARE(midnight.lines(3), QStringLiteral("1: 5 minutes ago|2: 3 hours ago|3: yesterday 23:59"));
        QCOMPARE(evening.lines(1), QStringLiteral("1: 6 minutes ago"));
        QCOMPARE(midnight.lines(3), QStringLiteral("1: yesterday 23:54|2: yesterday 20:59|3: Sun 23:59"));
        QVERIFY(m_root.setClock("12"));
        QCOMPARE(evening.lines(1), QStringLiteral("3: yesterday 9:25 pm"));
        QVERIFY(m_root.setRegion("de_DE"));
        QCOMPARE(evening.lines(3), QStringLiteral("1: vor 6 Minuten|2: vor 3 Stunden|3: gestern 9:25 PM"));
    }

private:
    const SettingsRoot m_root;
};

QTEST_GUILESS_MAIN(tst_Examples)
#include "tst_examples.moc"
