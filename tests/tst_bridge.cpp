// Text, locales and messages on their way between Qt and ICU.

#include "bridge/Diagnostic.h"
#include "bridge/Locale.h"
#include "bridge/String.h"
#include "support/MessageLog.h"
#include <QtCore/QDateTime>
#include <QtTest/QTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#endif

using zel::utility::i18n::Diagnostic;
using zel::utility::i18n::Locale;
using zel::utility::i18n::String;

class BridgeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textKeepsItsCodeUnits_data();
    void textKeepsItsCodeUnits();
    void missingTextStaysMissing();
    void findsLettersOutsideQuotes_data();
    void findsLettersOutsideQuotes();
    void territoryStays_data();
    void territoryStays();
    void fallbackWalksToTheBogusEnd_data();
    void fallbackWalksToTheBogusEnd();
    void fallbackOfTheEndIsFatal();
    void messagesAreTheirItemsEachWithOneSpace();
    void messagesHaveACategory();
};

void BridgeTest::textKeepsItsCodeUnits_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << QStringLiteral("5 minutes");
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("outside the first plane") << QString::fromUtf8("\U0001D7D8 \U0001F552");
    QTest::newRow("starts with a byte order mark") << QString::fromUtf8("\uFEFFh");
    QTest::newRow("half a surrogate pair") << QString(QChar(0xD835));
    QTest::newRow("holds a NUL") << QString::fromLatin1("a\0b", 3);
}

void BridgeTest::textKeepsItsCodeUnits()
{
    QFETCH(QString, text);
    const icu::UnicodeString converted = String::toICU(text);
    QCOMPARE(converted.length(), static_cast<int32_t>(text.size()));
    const QString back = String::toQt(converted);
    QCOMPARE(back, text);
    QVERIFY(!back.isNull());
}

void BridgeTest::missingTextStaysMissing()
{
    icu::UnicodeString bogus;
    bogus.setToBogus();
    QVERIFY(String::toQt(bogus).isNull());
    QVERIFY(String::toICU(QString()).isEmpty() && !String::toICU(QString()).isBogus());
}

void BridgeTest::findsLettersOutsideQuotes_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QChar>("letter");
    QTest::addColumn<int>("from");
    QTest::addColumn<bool>("anyCase");
    QTest::addColumn<int>("position");
    const QString quoted = QStringLiteral("h 'h' h");
    const QString doubled = QStringLiteral("h 'o''h' h");
    QTest::newRow("first") << quoted << QChar('h') << 0 << false << 0;
    QTest::newRow("quoted one is passed over") << quoted << QChar('h') << 1 << false << 6;
    QTest::newRow("doubled apostrophe keeps the side") << doubled << QChar('h') << 1 << false << 9;
    QTest::newRow("starts inside quotes") << quoted << QChar('h') << 3 << false << 6;
    QTest::newRow("only inside quotes") << QStringLiteral("'h' m") << QChar('h') << 0 << false << -1;
    QTest::newRow("not at all") << quoted << QChar('s') << 0 << false << -1;
    QTest::newRow("open quote") << QStringLiteral("m 'h") << QChar('h') << 0 << false << -1;
    QTest::newRow("other case") << QStringLiteral("'H' H") << QChar('h') << 0 << true << 4;
    QTest::newRow("case counts") << QStringLiteral("H") << QChar('h') << 0 << false << -1;
    QTest::newRow("behind the end") << quoted << QChar('h') << 7 << false << -1;
}

void BridgeTest::findsLettersOutsideQuotes()
{
    QFETCH(QString, format);
    QFETCH(QChar, letter);
    QFETCH(int, from);
    QFETCH(bool, anyCase);
    const Qt::CaseSensitivity cs = anyCase ? Qt::CaseInsensitive : Qt::CaseSensitive;
    QTEST(String::indexOfInFormat(format, letter, from, cs), "position");
}

void BridgeTest::territoryStays_data()
{
    QTest::addColumn<QString>("icuName");
    QTest::newRow("ar_EG") << QStringLiteral("ar_EG@calendar=gregorian");
    QTest::newRow("sr_Latn_RS") << QStringLiteral("sr_Latn_RS@calendar=gregorian");
    QTest::newRow("es_419") << QStringLiteral("es_419@calendar=gregorian");
    QTest::newRow("C") << QStringLiteral("en@calendar=gregorian");
}

void BridgeTest::territoryStays()
{
    const QLocale locale(QString::fromLatin1(QTest::currentDataTag()));
    QTEST(QString::fromLatin1(Locale::toICU(locale).getName()), "icuName");
}

void BridgeTest::fallbackWalksToTheBogusEnd_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("chain");
    QTest::newRow("keywords go first") << QByteArray("de_DE@calendar=gregorian") << QByteArray("de_DE de root end");
    QTest::newRow("script and territory go together") << QByteArray("sr_Latn_RS") << QByteArray("sr root end");
    QTest::newRow("variant too") << QByteArray("en_US_POSIX") << QByteArray("en root end");
    QTest::newRow("root") << QByteArray("root") << QByteArray("end");
}

void BridgeTest::fallbackWalksToTheBogusEnd()
{
    QFETCH(QByteArray, start);
    QByteArrayList chain;
    icu::Locale current = start == "root" ? icu::Locale::getRoot() : icu::Locale(start.constData());
    while (!current.isBogus() && chain.size() < 10) {
        current = Locale::fallback(current);
        const QByteArray name = current == icu::Locale::getRoot() ? QByteArray("root") : QByteArray(current.getName());
        chain.append(current.isBogus() ? QByteArray("end") : name);
    }
    QTEST(chain.join(' '), "chain");
}

void BridgeTest::fallbackOfTheEndIsFatal()
{
    int channel[2] = {-1, -1};
    QCOMPARE(::pipe(channel), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(channel[1], STDERR_FILENO);
        std::signal(SIGABRT, SIG_DFL);
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
            const QByteArray line = '[' + text.toUtf8() + ']';
            [[maybe_unused]] const auto written =
                ::write(STDERR_FILENO, line.constData(), static_cast<size_t>(line.size()));
        });
        icu::Locale bogus;
        bogus.setToBogus();
        Locale::fallback(bogus);
        ::_exit(0);
    }
    ::close(channel[1]);
    QFile output;
    QVERIFY(output.open(channel[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle));
    const QByteArray messages = output.readAll();
    int status = 0;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QVERIFY(WIFSIGNALED(status));
    const QByteArray signature = "static icu::Locale zel::utility::i18n::Locale::fallback(const icu::Locale&)";
    QVERIFY2(messages.startsWith('[' + signature +
                                 " called with bogus locale (crashing to avoid infinite recursion) ][" + signature +
                                 ']'),
             messages.constData());
}

void BridgeTest::messagesAreTheirItemsEachWithOneSpace()
{
    MessageLog log;
    const QStringList keys{QStringLiteral("units"), QStringLiteral("minute-past")};
    const QDateTime noon = QDateTime::fromString(QStringLiteral("2012-05-16T12:00Z"), Qt::ISODate);
    Diagnostic::write(QtDebugMsg, "at", 5, keys, QStringList());
    Diagnostic::write(QtWarningMsg, QString::fromUtf8("a \"b\" \\ \n ü 100%s"), "done");
    Diagnostic::write(QtCriticalMsg, noon);
    const QStringList expected{
        QStringLiteral("debug: at 5 (\"units\", \"minute-past\") () "),
        QString::fromUtf8("warning: \"a \"b\" \\ \n ü 100%s\" done "),
        QStringLiteral("critical: QDateTime(2012-05-16 12:00:00.000 UTC Qt::UTC) "),
    };
    QCOMPARE(log.take(), expected);
}

void BridgeTest::messagesHaveACategory()
{
    static QByteArray category;
    QtMessageHandler previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext& context, const QString&) { category = context.category; });
    Diagnostic::write(QtWarningMsg, "text");
    qInstallMessageHandler(previous);
    QCOMPARE(category, QByteArray("default"));
}

QTEST_GUILESS_MAIN(BridgeTest)
#include "tst_bridge.moc"
