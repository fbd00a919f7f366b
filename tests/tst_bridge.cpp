// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Conversions of text and locales between Qt and ICU, and messages.

#include "bridge/Diagnostic.h"
#include "bridge/Locale.h"
#include "bridge/String.h"
#include "support/MessageLog.h"
#include "support/Rows.h"
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
    void textKeepsItsCodeUnits_data()
    {
        const NamedRow<QString> row;
        row("plain", "5 minutes");
        row("empty", "");
        row("outside the first plane", "\U0001D7D8 \U0001F552");
        row("starts with a byte order mark", "\uFEFFh");
        row("half a surrogate pair", QString(QChar(0xD835)));
        row("holds a NUL", QString::fromLatin1("a\0b", 3));
    }

    void textKeepsItsCodeUnits()
    {
        const auto [text] = cells<QString>();
        const icu::UnicodeString converted = String::toICU(text);
        QCOMPARE(converted.length(), static_cast<int32_t>(text.size()));
        const QString back = String::toQt(converted);
        QCOMPARE(back, text);
        QVERIFY(!back.isNull());
    }

    void missingTextStaysMissing()
    {
        icu::UnicodeString bogus;
        bogus.setToBogus();
        QVERIFY(String::toQt(bogus).isNull());
        QVERIFY(String::toICU(QString()).isEmpty() && !String::toICU(QString()).isBogus());
    }

    void findsLettersOutsideQuotes_data()
    {
        const NamedRow<QString, QChar, int, bool, int> row;
        const QString quoted = QStringLiteral("h 'h' h");
        const QString doubled = QStringLiteral("h 'o''h' h");
        row("first", quoted, QChar('h'), 0, false, 0);
        row("quoted one is passed over", quoted, QChar('h'), 1, false, 6);
        row("doubled apostrophe keeps the side", doubled, QChar('h'), 1, false, 9);
        row("starts inside quotes", quoted, QChar('h'), 3, false, 6);
        row("only inside quotes", "'h' m", QChar('h'), 0, false, -1);
        row("not at all", quoted, QChar('s'), 0, false, -1);
        row("open quote", "m 'h", QChar('h'), 0, false, -1);
        row("other case", "'H' H", QChar('h'), 0, true, 4);
        row("case counts", "H", QChar('h'), 0, false, -1);
        row("past the end", quoted, QChar('h'), 7, false, -1);
    }

    void findsLettersOutsideQuotes()
    {
        const auto [format, letter, from, anyCase, position] = cells<QString, QChar, int, bool, int>();
        const Qt::CaseSensitivity cs = anyCase ? Qt::CaseInsensitive : Qt::CaseSensitive;
        QCOMPARE(String::indexOfInFormat(format, letter, from, cs), position);
    }

    void territoryStays_data()
    {
        const NamedRow<QString> row;
        row("ar_EG", "ar_EG@calendar=gregorian");
        row("sr_Latn_RS", "sr_Latn_RS@calendar=gregorian");
        row("es_419", "es_419@calendar=gregorian");
        row("C", "en@calendar=gregorian");
    }

    void territoryStays()
    {
        const auto [icuName] = cells<QString>();
        const QLocale locale(QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(QString::fromLatin1(Locale::toICU(locale).getName()), icuName);
    }

    void fallbackEndsWithTheBogusLocale_data()
    {
        const NamedRow<QByteArray, QByteArray> row;
        row("keywords go first", "de_DE@calendar=gregorian", "de_DE de root end");
        row("script and territory go together", "sr_Latn_RS", "sr root end");
        row("variant too", "en_US_POSIX", "en root end");
        row("root", "root", "end");
    }

    void fallbackEndsWithTheBogusLocale()
    {
        const auto [start, expected] = cells<QByteArray, QByteArray>();
        QByteArrayList chain;
        icu::Locale current = start == "root" ? icu::Locale::getRoot() : icu::Locale(start.constData());
        while (!current.isBogus() && chain.size() < 10) {
            current = Locale::fallback(current);
            const QByteArray name =
                current == icu::Locale::getRoot() ? QByteArray("root") : QByteArray(current.getName());
            chain.append(current.isBogus() ? QByteArray("end") : name);
        }
        QCOMPARE(chain.join(' '), expected);
    }

    void fallbackOfTheBogusLocaleIsFatal()
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

    void messagesAreItemsWithOneSpaceEach()
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

    void messagesHaveACategory()
    {
        static QByteArray category;
        QtMessageHandler previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext& context, const QString&) { category = context.category; });
        Diagnostic::write(QtWarningMsg, "text");
        qInstallMessageHandler(previous);
        QCOMPARE(category, QByteArray("default"));
    }
};

QTEST_GUILESS_MAIN(BridgeTest)
#include "tst_bridge.moc"
