// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// ICU's patterns in Qt syntax, and rewritten for the clock of the device. Expectations hold for ICU 72.

#include "patterns/AmPmField.h"
#include "patterns/ClockPattern.h"
#include "patterns/FormattingPrivate.h"
#include "settings/ClockSetting.h"
#include "support/MessageLog.h"
#include "support/Rows.h"
#include "support/SettingsRoot.h"
#include <QtTest/QTest>
#include <zel/utility/i18n/Formatting.h>

using namespace zel::utility::i18n;

class PatternsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_root.setRegion("de_DE"));
        QVERIFY(m_root.setClock("12"));
    }

    void translates_data()
    {
        const Row<QString, QString> row;
        row("", nullptr);
        row("y yy yyy yyyyy", "yyyy yy yyyy yyyy");
        row("M MM MMM MMMM MMMMM", "M MM MMM MMMM MMMM");
        row("L LL LLL LLLL LLLLL", "M MM MMM MMMM MMMM");
        row("d dd ddd", "d dd dd");
        row("E EE EEE EEEE EEEEEE", "ddd ddd ddd dddd dddd");
        row("ccc cccc ccccc", "ddd dddd dddd");
        row("eee", "ddd");
        row("H HH h hh HHH", "h hh h hh hh");
        row("m mm s ss", "m mm s ss");
        row("s.S ss.SS ss.SSS", "s.z ss.zzz ss.zzz");
        row("h:mm aaaa", "h:mm AP");
        row("z zzzz Z v vvvv V", "t t t t t t");
        row("d 'de' MMMM 'de' y", "d 'de' MMMM 'de' yyyy");
        row("''h", "''h");
        row("h 'o''clock' a", "h 'o''clock' AP");
        row("'abc", "'abc'");
        row("y年M月d日[x]_9", "yyyy年M月d日[x]_9");
        for (const char* const none :
             {"c", "cc", "e", "eeee", "G y", "h:mm K", "Y", "u", "Q", "q", "w", "W", "D", "F", "g", "A", "k", "K"}) {
            row(none, nullptr);
        }
    }

    void translates()
    {
        const auto [icu, qt] = cells<QString, QString>();
        const QString translated = getQtDateTimePatternFromICU(icu);
        QCOMPARE(translated, qt);
        QCOMPARE(translated.isNull(), qt.isNull());
    }

    void dateFormats_data()
    {
        const Row<QString, int, QString> row;
        row("en_US", DateFormat::Short, QStringLiteral("M/d/yy"));
        row("en_US", DateFormat::Medium, QStringLiteral("MMM d, yyyy"));
        row("en_US", DateFormat::Long, QStringLiteral("MMMM d, yyyy"));
        row("en_US", DateFormat::Full, QStringLiteral("dddd, MMMM d, yyyy"));
        row("de_AT", DateFormat::Full, QStringLiteral("dddd, d. MMMM yyyy"));
        row("es_ES", DateFormat::Long, QStringLiteral("d 'de' MMMM 'de' yyyy"));
        row("ja_JP", DateFormat::Long, QString::fromUtf8("yyyy年M月d日"));
        row("zh_TW", DateFormat::Full, QString::fromUtf8("yyyy年M月d日 dddd"));
        row("en_US", 0, QStringLiteral("MMM d, yyyy"));
        row("en_US", 5, QStringLiteral("MMM d, yyyy"));
        row("en_US", -1, QStringLiteral("MMM d, yyyy"));
        // Long Thai dates carry an era, which Qt cannot write.
        const QLocale thai(QStringLiteral("th_TH"));
        row("th_TH", DateFormat::Medium, QStringLiteral("d MMM yyyy"));
        row("th_TH", DateFormat::Long, thai.dateFormat(QLocale::LongFormat));
        row("th_TH", DateFormat::Full, thai.dateFormat(QLocale::LongFormat));
    }

    void dateFormats()
    {
        const auto [locale, type, pattern] = cells<QString, int, QString>();
        QCOMPARE(dateFormat(QLocale(locale), static_cast<DateFormat::Type>(type)), pattern);
    }

    void timesFollowTheClock_data()
    {
        const Row<QString, int, bool, QString, QString, bool> row;
        row("en_US", DateFormat::Medium, false, "h:mm:ss AP", "hh:mm:ss", false);
        row("en_US", DateFormat::Full, false, "h:mm:ss AP t", "hh:mm:ss t", false);
        row("en_US", DateFormat::Short, true, "M/d/yy, h:mm AP", "M/d/yy, hh:mm", false);
        row("en_GB", DateFormat::Short, false, "h:mm ap", "hh:mm", false);
        row("de_DE", DateFormat::Medium, false, "h:mm:ss AP", "hh:mm:ss", false);
        row("de_DE", DateFormat::Full, false, "h:mm:ss AP t", "hh:mm:ss t", false);
        row("de_DE", DateFormat::Short, false, "h:mm AP", "hh:mm", false);
        row("ja_JP", DateFormat::Medium, false, "APh:mm:ss", "h:mm:ss", false);
        row("zh_CN", DateFormat::Medium, false, "APh:mm:ss", "hh:mm:ss", false);
        row("zh_CN", DateFormat::Full, false, "t APh:mm:ss", "t hh:mm:ss", false);
        row("tr_TR", DateFormat::Short, true, "d.MM.yyyy AP h:mm", "d.MM.yyyy hh:mm", false);
        row("es_ES", DateFormat::Full, false, "h:mm:ss ap (t)", "h:mm:ss (t)", false);
        row("zh_TW", DateFormat::Medium, false, "APh:mm:ss", "hh:mm:ss", false);
        row("ko_KR", DateFormat::Medium, false, "AP h:mm:ss", "hh:mm:ss", false);
        row("sq_AL", DateFormat::Medium, false, "h:mm:ss ap", "hh:mm:ss", true);
        // With an era in its date the text is Qt's, which ignores the clock.
        const QByteArray thai = QLocale("th_TH").dateTimeFormat(QLocale::LongFormat).toUtf8();
        row("th_TH", DateFormat::Long, true, thai.constData(), thai.constData(), false);
        row("fr_CA", DateFormat::Medium, false, "h 'h' mm 'min' ss 's' ap", "hh 'h' mm 'min' ss 's'", false);
        row("fr_CA", DateFormat::Full, false, "h 'h' mm 'min' ss 's' ap t", "hh 'h' mm 'min' ss 's' t", false);
    }

    void timesFollowTheClock()
    {
        const auto [locale, type, withDate, twelve, twentyFour, unsupported] =
            cells<QString, int, bool, QString, QString, bool>();
        QString (*const formatOf)(const QLocale&, DateFormat::Type) =
            withDate ? static_cast<QString (*)(const QLocale&, DateFormat::Type)>(&dateTimeFormat)
                     : static_cast<QString (*)(const QLocale&, DateFormat::Type)>(&timeFormat);
        MessageLog log;
        QVERIFY(setClock(12));
        QCOMPARE(formatOf(QLocale(locale), static_cast<DateFormat::Type>(type)), twelve);
        QCOMPARE(log.take(), QStringList());
        QVERIFY(setClock(24));
        QCOMPARE(formatOf(QLocale(locale), static_cast<DateFormat::Type>(type)), twentyFour);
        const QStringList warning{
            QStringLiteral("warning: zel::utility::i18n::Formatting::replaceWithSystemClockFormat() "
                           "has encountered an unsupported time format! ")};
        QCOMPARE(log.take(), unsupported ? warning : QStringList());
    }

    void addsAndRemovesAmPm_data()
    {
        const Row<QLocale::Language, QString, QString, QString> row;
        row(QLocale::German, "mm:ss", "mm:ss AP", "mm:ss");
        row(QLocale::German, "", " AP", "");
        row(QLocale::Japanese, "mm:ss", "mm:ss", "mm:ss");
        row(QLocale::Chinese, "mm:ss", "mm:ss AP", "mm:ss");
        row(QLocale::Cantonese, "hh:mm", "APh:mm", "hh:mm");
        row(QLocale::Burmese, "d 'hh' hh:mm", "d 'hh' AP h:mm", "d 'hh' hh:mm");
        row(QLocale::Spanish, "h:mm:ss (t)", "h:mm:ss AP (t)", "hh:mm:ss (t)");
        row(QLocale::Spanish, "h:mm:ss(t)", "h:mm:ss AP(t)", "hh:mm:ss(t)");
        row(QLocale::Spanish, "h:mm:ss, t", "h:mm:ss AP, t", "hh:mm:ss, t");
        row(QLocale::Bulgarian, "h:mm 'ч'.", "h:mm 'ч'. AP", "hh:mm 'ч'.");
        row(QLocale::French, "hh'h'mm'min'", "h'h'mm'min' AP", "hh'h'mm'min'");
        row(QLocale::French, "hh:mm''", "h:mm AP''", "hh:mm''");
    }

    void addsAndRemovesAmPm()
    {
        auto [language, pattern, added, removed] = cells<QLocale::Language, QString, QString, QString>();
        const MessageLog log; // about an AM/PM field at an unexpected position
        AmPmField::add(language, pattern);
        QCOMPARE(pattern, added);
        if (AmPmField::isIn(pattern)) {
            AmPmField::remove(language, pattern);
        }
        QCOMPARE(pattern.trimmed(), removed);
        QString comma = QStringLiteral("h:mm AP, t");
        AmPmField::remove(QLocale::Albanian, comma);
        QCOMPARE(comma, QStringLiteral("hh:mm, t"));
    }

    void clockRewritesSkeletons_data()
    {
        const Row<QString, int, QString> row;
        row("jmm", ClockFormat::Use12hourClock, "hmm");
        row("jmm", ClockFormat::Use24hourClock, "Hmm");
        row("jmm", ClockFormat::ApplyLocaleFormat, "jmm");
        row("jmm", ClockFormat::ApplyUserFormat, "Hmm");
        row("jjmm", ClockFormat::Use12hourClock, "hhmm");
        row("Jmm", ClockFormat::Use24hourClock, "Jmm");
        row("yMMMd", 99, "yMMMd");
        row("jmm", 99, nullptr);
        row("Jmm", 0, nullptr);
    }

    void clockRewritesSkeletons()
    {
        const auto [skeleton, format, rewritten] = cells<QString, int, QString>();
        QVERIFY(setClock(24));
        MessageLog log;
        QCOMPARE(ClockPattern::apply(skeleton, static_cast<ClockFormat::Type>(format)), rewritten);
        const QStringList complaint{
            QStringLiteral("critical: static QString zel::utility::i18n::ClockPattern::apply(const "
                           "QString&, zel::utility::i18n::ClockFormat::Type) called with invalid "
                           "clock format type %1 ")
                .arg(format)};
        QCOMPARE(log.take(), rewritten.isNull() ? complaint : QStringList());
        QCOMPARE(ClockPattern::isNotApplicable(skeleton), skeleton == QLatin1String("yMMMd"));
    }

private:
    bool setClock(int hours)
    {
        return m_root.setClock(QByteArray::number(hours)) &&
               QTest::qWaitFor([hours] { return ClockSetting::clockFormat() == hours; }, 2000);
    }

    SettingsRoot m_root;
};

QTEST_GUILESS_MAIN(PatternsTest)
#include "tst_patterns.moc"
