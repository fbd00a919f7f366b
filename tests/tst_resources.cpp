// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Phrases from locale bundles, also from malformed ones.

#include "bridge/Locale.h"
#include "relative/RelativeDate.h"
#include "relative/RelativeDatePattern.h"
#include "resources/NumericResourceAccessor.h"
#include "resources/PluralResourceAccessor.h"
#include "resources/ResourceFormatter.h"
#include "support/IcuBundles.h"
#include "support/MessageLog.h"
#include "support/Rows.h"
#include <limits>
#include <memory>
#include <QtTest/QTest>

using namespace zel::utility::i18n;

namespace {

const QString initSignature =
    QStringLiteral("static icu::ResourceBundle* zel::utility::i18n::ResourceAccessor::initResource(const icu::Locale&, "
                   "const QStringList&) ");
const QString numericConstructor =
    QStringLiteral("critical: zel::utility::i18n::NumericResourceAccessor::NumericResourceAccessor(const QLocale&, "
                   "const QStringList&, QObject*) ");
const QString numericFormat =
    QStringLiteral("critical: virtual QString zel::utility::i18n::NumericResourceAccessor::format(int) const ");
const QString pluralConstructor =
    QStringLiteral("critical: zel::utility::i18n::PluralResourceAccessor::PluralResourceAccessor(const QLocale&, const "
                   "QStringList&, QObject*) ");
const QString pluralFormat =
    QStringLiteral("virtual QString zel::utility::i18n::PluralResourceAccessor::format(int) const ");
const QString getStringFailed =
    QStringLiteral("warning: Error in calling icu::ResourceBundle::getStringEx( const char *, UErrorCode & ): ");

QStringList exhausted(const QString& constructor, const QString& locale, const QString& keys)
{
    return {constructor + QStringLiteral("exhausted all possible locale fallbacks for \"%1\" ").arg(locale),
            constructor + QStringLiteral("failed to open resource path: (%1) ").arg(keys)};
}

// "de" is malformed, "de_AT" has its own table, "pl" and "ar" have the categories of their plural rules.
constexpr const char* oddGerman = R"(de {
    t { one { "einmal" } other { "{0} mal {0}" } }
    numbers { 0 { "null" } 1 { "eins" } 5 { "fuenf" } }
    onlyOther { other { "{0} min ago" } }
    named { "-1" { "gestern" } 0 { "heute" } 1 { "morgen" } 2 { "bald" } }
    twoOfThree { "-1" { "gestern" } 0 { "heute" } }
    notText { "-1" { "gestern" } 0:int { 5 } 1 { "morgen" } }
    pluralNotText { one:int { 1 } other { "x" } }
    numberNotText { 5:int { 5 } }
    otherNotText { other:int { 5 } }
    text { "a string" }
    calendar { gregorian { fields { day { relative { "-1" { "d\u0027hier" } 0 { "o\u0027\u0027clock" } 1 { "morgen" } } } } } }
    units {
        minute-past { other { "vor {0}" } }
        minute-future { other { "in {0}" } }
        hour-past { other { "nur vor {0}" } }
    }
})";
constexpr const char* austrian = R"(de_AT { own { other { "{0} eigene" } } text { "nur Text" } })";
constexpr const char* polish =
    R"(pl { t { one { "{0} minuta" } few { "{0} minuty" } many { "{0} minut" } other { "{0} minuty" } } })";
constexpr const char* arabic =
    R"(ar { NumberElements { default { "arab" } } t { zero { "z{0}" } one { "o{0}" } two { "t{0}" } few { "f{0}" } many { "m{0}" } other { "x{0}" } } byNumber { 5 { "n{0}" } } })";

} // namespace

class ResourcesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_bundles.use();
        QVERIFY(m_bundles.compile(QStringLiteral("de"), oddGerman));
        QVERIFY(m_bundles.compile(QStringLiteral("de_AT"), austrian));
        QVERIFY(m_bundles.compile(QStringLiteral("pl"), polish));
        QVERIFY(m_bundles.compile(QStringLiteral("ar"), arabic));
    }

    void followsAKeyPath_data()
    {
        const NamedRow<QStringList, int, QStringList> row;
        row("no key", {}, URES_TABLE, {});
        row("table", {"units", "minute-past"}, URES_TABLE, {});
        row("string", {"units", "minute-past", "other"}, URES_STRING, {});
        row("missing", {"units", "decade-past"}, -1, {});
        row("below a string", {"text", "deeper"}, -1,
            {"warning: Error in calling icu::ResourceBundle::get( const char *, "
             "UErrorCode & ) : U_RESOURCE_TYPE_MISMATCH ",
             "warning: " + initSignature +
                 "failed to access resource key \"deeper\" in locale "
                 "de_DE@calendar=gregorian "});
    }

    void followsAKeyPath()
    {
        const auto [keys, type, messages] = cells<QStringList, int, QStringList>();
        MessageLog log;
        const std::unique_ptr<icu::ResourceBundle> bundle(
            ResourceAccessor::initResource(Locale::toICU(QLocale("de")), keys));
        QCOMPARE(bundle ? static_cast<int>(bundle->getType()) : -1, type);
        QCOMPARE(log.take(), messages);
    }

    void apostrophesAreUnchanged()
    {
        const QDateTime anchor = QDateTime::fromString(QStringLiteral("2012-05-16T12:00Z"), Qt::ISODate);
        const RelativeDatePattern pattern(QLocale("de_DE"), ClockFormat::Use24hourClock, anchor, QStringLiteral("E"),
                                          {RelativeDateElement::NamedDays}, nullptr);
        QCOMPARE(pattern.format(anchor.addDays(-1)), QStringLiteral("d'hier"));
        QCOMPARE(pattern.format(anchor), QStringLiteral("o''clock"));
    }

    void fixedPhrases_data()
    {
        const NamedRow<QString, QStringList, QString, QStringList> row;
        row("own table", "de", {"named"}, "gestern", {});
        row("parent's table", "de_AT", {"named"}, "gestern", {});
        row("a missing entry is silent", "de", {"twoOfThree"}, {},
            exhausted(numericConstructor, "de", "\"twoOfThree\""));
        row("no key at all", "pl", {}, {}, exhausted(numericConstructor, "pl", ""));
        const QString mismatch =
            QStringLiteral("warning: Error in calling icu::ResourceBundle::getStringEx( const char *, "
                           "UErrorCode & ) : U_RESOURCE_TYPE_MISMATCH ");
        row("an entry that is not a string", "de", {"notText"}, {},
            (QStringList{mismatch, mismatch, mismatch} + exhausted(numericConstructor, "de", "\"notText\"")));
        row("a string where a table belongs", "de_AT", {"text"}, {},
            {numericConstructor + "did not reach a resource table using supplied keys (\"text\") "});
    }

    void fixedPhrases()
    {
        const auto [locale, keys, yesterday, messages] = cells<QString, QStringList, QString, QStringList>();
        MessageLog log;
        const NumericResourceAccessor accessor(QLocale(locale), keys, nullptr);
        QCOMPARE(log.take(), messages);
        QCOMPARE(accessor.isValid(), !yesterday.isNull());
        QCOMPARE(accessor.format(-1), yesterday);
        QCOMPARE(log.take(),
                 yesterday.isNull() ? QStringList{numericFormat + "called on an invalid resource "} : QStringList());
    }

    void fixedPhrasesByCount()
    {
        const NumericResourceAccessor accessor(QLocale("de"), {"named"}, nullptr);
        MessageLog log;
        QCOMPARE(accessor.format(0), QStringLiteral("heute"));
        QCOMPARE(accessor.format(1), QStringLiteral("morgen"));
        QCOMPARE(log.take(), QStringList());
        for (const int count : {2, -2, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
            QVERIFY(accessor.format(count).isNull());
            QCOMPARE(log.take(),
                     QStringList{numericFormat + QStringLiteral("is unable to format this number: %1 ").arg(count)});
        }
    }

    void countedPhrases_data()
    {
        const Row<QString, QString, int, QString, QStringList> row;
        row("de", "t", 1, "einmal", {});
        row("de", "t", 1000, "1,000 mal 1,000", {});
        row("de", "numbers", 0, "null", {});
        row("de", "numbers", 5, "fuenf", {});
        row("de", "onlyOther", 1, "1 min ago", {});
        row("de_AT", "own", 3, "3 eigene", {});
        row("de_AT", "onlyOther", 1234, "1,234 min ago", {});
        const char* const polishPhrases[] = {"0 minut", "1 minuta", "2 minuty", "3 minuty",
                                             "5 minut", "11 minut", "21 minut", "100 minut"};
        const char* const arabicPhrases[] = {"z٠", "o١", "t٢", "f٣", "f٥", "m١١", "m٢١", "x١٠٠"};
        const int counts[] = {0, 1, 2, 3, 5, 11, 21, 100};
        for (std::size_t i = 0; i < std::size(counts); ++i) {
            row("pl", "t", counts[i], polishPhrases[i], {});
            row("ar", "t", counts[i], arabicPhrases[i], {});
        }
        row("ar", "byNumber", 5, "n٥", {});
        row("de", "numbers", 7, QString(),
            {getStringFailed + "U_MISSING_RESOURCE_ERROR ",
             "warning: " + pluralFormat + "failed to access final fall-back resource table \"other\" "});
        row("de", "pluralNotText", 1, QString(),
            {getStringFailed + "U_RESOURCE_TYPE_MISMATCH ",
             "warning: " + pluralFormat + "failed to access resource table \"one\" "});
        row("de", "numberNotText", 5, QString(),
            {getStringFailed + "U_RESOURCE_TYPE_MISMATCH ",
             "warning: " + pluralFormat + "failed to access fall-back resource table \"other\" "});
        row("de", "otherNotText", 5, QString(),
            {getStringFailed + "U_RESOURCE_TYPE_MISMATCH ",
             "warning: " + pluralFormat + "failed to access resource table \"other\" "});
    }

    void countedPhrases()
    {
        const auto [locale, table, count, phrase, messages] = cells<QString, QString, int, QString, QStringList>();
        MessageLog log;
        const PluralResourceAccessor accessor(QLocale(locale), {table}, nullptr);
        QVERIFY(accessor.isValid());
        QCOMPARE(accessor.format(count), phrase);
        QCOMPARE(log.take(), messages);
    }

    void countedTables_data()
    {
        const NamedRow<QString, QStringList, QStringList> row;
        row("nowhere", "de_AT", {"units", "decade"}, exhausted(pluralConstructor, "de-AT", "\"units\", \"decade\""));
        row("a string where a table belongs", "de_AT", {"text"},
            {pluralConstructor + "did not reach a resource table using supplied keys (\"text\") "});
    }

    void countedTables()
    {
        const auto [locale, keys, messages] = cells<QString, QStringList, QStringList>();
        MessageLog log;
        const PluralResourceAccessor accessor(QLocale(locale), keys, nullptr);
        QCOMPARE(log.take(), messages);
        QVERIFY(!accessor.isValid());
        QVERIFY(accessor.format(0).isNull());
        QCOMPARE(log.take(), QStringList{"critical: " + pluralFormat + "called on an invalid resource "});
    }

    void formatterNeedsBothSides()
    {
        MessageLog log;
        const ResourceFormatter formatter(QLocale("de"), RelativeDateElement::Hours, nullptr);
        QCOMPARE(log.take(), exhausted(pluralConstructor, "de", "\"units\", \"hour-future\""));
        QVERIFY(!formatter.isValid());
        QVERIFY(formatter.format(-1).isNull());
        QCOMPARE(log.take(), QStringList{"critical: QString zel::utility::i18n::ResourceFormatter::format(int) const "
                                         "called on an invalid formatter "});
    }

    void formatterOfInvalidElement()
    {
        MessageLog log;
        const ResourceFormatter formatter(QLocale("pl"), static_cast<RelativeDateElement::Type>(64), nullptr);
        const QStringList expected =
            QStringList{"critical: static bool zel::utility::i18n::RelativeDate::resourceIsPlural("
                        "zel::utility::i18n::RelativeDateElement::Type) called with invalid element type: 64 ",
                        "critical: static QStringList zel::utility::i18n::RelativeDate::resourcePath("
                        "zel::utility::i18n::RelativeDateElement::Type, bool) called with invalid element type: 64 "} +
            exhausted(numericConstructor, "pl", "");
        QCOMPARE(log.take(), expected);
        QVERIFY(!formatter.isValid());
    }

private:
    IcuBundles m_bundles;
};

QTEST_GUILESS_MAIN(ResourcesTest)
#include "tst_resources.moc"
