#include "support/Child.h"
#include "support/Rows.h"
#include "support/SettingsRoot.h"
#include <QtTest/QtTest>

namespace {

// A space that does not break looks like any other here.
QString withPlainSpaces(QString output)
{
    return output.replace(QChar(0xa0), QLatin1Char(' ')).replace(QChar(0x202f), QLatin1Char(' '));
}

/** An example at work. */
class Example : public Child
{
public:
    Example(const QString& name, const QStringList& arguments)
        : Child(QStringLiteral(ZEL_EXAMPLES "/example_") + name, arguments)
    {
    }

    QString line() { return withPlainSpaces(Child::line()); }

    /** All lines of an example that ends by itself, and well. */
    QStringList lines()
    {
        const Result result = finish();
        return result.status == 0 ? withPlainSpaces(result.output).trimmed().split(QLatin1Char('\n'))
                                  : QStringList(QStringLiteral("(failed)"));
    }
};

} // namespace

/** The examples print what they promise, on a British device with a 24-hour clock. */
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
        row("threads", {}, R"(en_GB  100 dates  3 Sept 2012  5 minutes ago
de_DE  100 dates  3 Sept 2012  vor 5 Minuten
fr_FR  100 dates  3 Sept 2012  il y a 5 minutes
pl_PL  100 dates  3 Sept 2012  5 minut temu
ar_EG  100 dates  3 Sept 2012  قبل ٥ دقائق
ja_JP  100 dates  3 Sept 2012  5 分前
he_IL  100 dates  3 Sept 2012  לפני 5 דקות
th_TH  100 dates  3 Sept 2012  5 นาทีที่ผ่านมา)");
        if (ZEL_HAS_QUICK) {
            row("quick", {QStringLiteral("--print"), QStringLiteral("2012-09-03T10:30")},
                "5 minutes ago | 3 hours ago | yesterday 10:30\n"
                "today | today | yesterday");
        }
    }
    void output()
    {
        const auto [arguments, expected] = cells<QStringList, QString>();
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        QCOMPARE(Example(name, arguments).lines(), expected.split(QLatin1Char('\n')));
    }

    void messagesGrowOlder()
    {
        Example messages(QStringLiteral("messages"), listFrom("3600"));
        QCOMPARE(messages.line(), QStringLiteral("5 minutes ago | 3 hours ago | yesterday 21:25"));
        QCOMPARE(messages.line(), QStringLiteral("1 hour ago | 4 hours ago | yesterday 21:25"));
        QCOMPARE(messages.line(), QStringLiteral("2 hours ago | 5 hours ago | yesterday 21:25"));
        QCOMPARE(messages.line(), QStringLiteral("yesterday 21:20 | yesterday 18:25 | Sun 21:25"));
    }

    void messagesFollowTheDevice()
    {
        Example messages(QStringLiteral("messages"), listFrom("0"));
        QCOMPARE(messages.line(), QStringLiteral("5 minutes ago | 3 hours ago | yesterday 21:25"));
        QVERIFY(m_root.setClock("12"));
        QCOMPARE(messages.line(), QStringLiteral("5 minutes ago | 3 hours ago | yesterday 9:25 pm"));
        QVERIFY(m_root.setRegion("de_DE"));
        QCOMPARE(messages.line(), QStringLiteral("vor 5 Minuten | vor 3 Stunden | gestern 9:25 PM"));
    }

private:
    static QStringList listFrom(const char* step)
    {
        return {QStringLiteral("--print"), QStringLiteral("--at"), QStringLiteral("2012-09-03T21:25"),
                QStringLiteral("--step"), QString::fromLatin1(step)};
    }

    const SettingsRoot m_root;
};

QTEST_GUILESS_MAIN(tst_Examples)
#include "tst_examples.moc"
