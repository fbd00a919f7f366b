// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Every locale of ICU with both clocks: rules that hold for any locale data.

#include "bridge/Locale.h"
#include "bridge/String.h"
#include "resources/ResourceFormatter.h"
#include "settings/ClockSetting.h"
#include "support/MessageLog.h"
#include "support/Rows.h"
#include "support/SettingsRoot.h"
#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtTest/QTest>
#include <tuple>
#include <unicode/dtptngen.h>
#include <unicode/locid.h>
#include <unicode/numfmt.h>
#include <unicode/reldatefmt.h>
#include <unicode/smpdtfmt.h>
#include <unicode/uchar.h>
#include <utility>
#include <vector>
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/Formatting.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

namespace {

constexpr std::array<DateFormat::Type, 4> lengths{DateFormat::Short, DateFormat::Medium, DateFormat::Long,
                                                  DateFormat::Full};

// Its hour differs from its other numbers, its year is in the century that Qt assumes for two digits, and in no locale
// is the name of its weekday the beginning of another one's, at which Qt would stop.
const QDateTime moment = QDateTime::fromString(QStringLiteral("1987-11-30T15:08:42Z"), Qt::ISODate);

const QStringList skeletons{"y",     "yM",     "yMd",        "yMMM", "yMMMd",  "yMMMM",   "yMMMMd",      "yMMMEd",
                            "yQQQ",  "GyMMMd", "yMMMMEEEEd", "M",    "MMM",    "MMMM",    "Md",          "MMMd",
                            "MMMEd", "MMMMd",  "MMMMEEEEd",  "d",    "E",      "EEEE",    "ms",          "h",
                            "hm",    "Hm",     "hms",        "Ehm",  "MMMdhm", "yMMMdhm", "yMMMMEEEEdhm"};

std::vector<icu::Locale> icuLocales()
{
    int32_t count = 0;
    const icu::Locale* const all = icu::Locale::getAvailableLocales(count);
    // In slow builds, and in a second run, every seventh locale suffices.
    const int step = qEnvironmentVariableIsSet("ZEL_SWEEP_SAMPLE") ? 7 : 1;
    std::vector<icu::Locale> locales;
    for (int i = 0; i < count; i += step) {
        locales.push_back(all[i]);
    }
    return locales;
}

QLocale qtLocale(const icu::Locale& locale)
{
    return QLocale(QString::fromLatin1(locale.getName()));
}

std::vector<QLocale> qtLocales()
{
    std::vector<QLocale> locales;
    for (const icu::Locale& locale : icuLocales()) {
        locales.push_back(qtLocale(locale));
    }
    return locales;
}

QString withoutQuoted(QString pattern)
{
    static const QRegularExpression quoted(QStringLiteral("'[^']*'"));
    return pattern.remove(quoted);
}

bool showsAmPm(const QString& pattern)
{
    return withoutQuoted(pattern).contains(QLatin1String("ap"), Qt::CaseInsensitive);
}

// Whether a letter outside quotes is not a field of Qt's syntax.
bool hasStrayLetter(const QString& pattern)
{
    static const QRegularExpression fields(QStringLiteral("d{1,4}|M{1,4}|yyyy|yy|h{1,2}|mm?|ss?|AP|ap|t"));
    static const QRegularExpression letters(QStringLiteral("[A-Za-z]"));
    return withoutQuoted(pattern).remove(fields).contains(letters);
}

// The digits of a text, in any script.
QString digits(const QString& text)
{
    QString found;
    for (const uint c : text.toUcs4()) {
        if (u_charDigitValue(static_cast<UChar32>(c)) >= 0) {
            found += QString::number(u_charDigitValue(static_cast<UChar32>(c)));
        }
    }
    return found;
}

// Whether ICU writes AM/PM before the hour of a pattern; 0 if it writes none.
int sideOfAmPm(const QString& icuPattern)
{
    static const QRegularExpression amPm(QStringLiteral("[abB]"));
    static const QRegularExpression hour(QStringLiteral("[hK]"));
    const QString fields = withoutQuoted(icuPattern);
    const auto position = fields.indexOf(amPm);
    return position == -1 ? 0 : position < fields.indexOf(hour) ? -1 : 1;
}

// The pattern of a locale, and the sweep's moment formatted with it.
QString writtenBy(const icu::Locale& locale, icu::DateFormat::EStyle style)
{
    const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createDateTimeInstance(style, style, locale));
    format->adoptTimeZone(icu::TimeZone::getGMT()->clone());
    icu::UnicodeString pattern;
    icu::UnicodeString text;
    static_cast<const icu::SimpleDateFormat&>(*format).toPattern(pattern);
    format->format(static_cast<UDate>(moment.toMSecsSinceEpoch()), text);
    return String::toQt(pattern + u" " + text);
}

} // namespace

class SweepTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A locale's names in Qt and ICU give the same digits, patterns and names.
    void asInICU()
    {
        // Qt omits likely scripts. For these locales ICU then gives other results.
        const QSet<QString> needScript{QStringLiteral("ff_Latn_GH"),  QStringLiteral("ff_Latn_GM"),
                                       QStringLiteral("ff_Latn_LR"),  QStringLiteral("ff_Latn_SL"),
                                       QStringLiteral("kok_Deva_IN"), QStringLiteral("zh_Hans_MY")};
        const std::vector<icu::Locale> all = icuLocales();
        std::size_t compared = 0;
        for (const icu::Locale& own : all) {
            const QLocale locale = qtLocale(own);
            UErrorCode status = U_ZERO_ERROR;
            icu::Locale likely = own;
            icu::Locale qtLikely = icu::Locale::forLanguageTag(locale.bcp47Name().toStdString(), status);
            likely.addLikelySubtags(status);
            qtLikely.addLikelySubtags(status);
            icu::Locale gregorian = own;
            gregorian.setKeywordValue("calendar", "gregorian", status);
            icu::Locale withoutScript(own.getLanguage(), own.getCountry());
            withoutScript.setKeywordValue("calendar", "gregorian", status);
            if (own.getCountry()[0] == '\0' || likely != qtLikely) {
                continue;
            }
            const bool hasScript = Locale::toICU(locale).getScript()[0] != '\0';
            if (!hasScript &&
                writtenBy(withoutScript, icu::DateFormat::kFull) != writtenBy(gregorian, icu::DateFormat::kFull)) {
                const QString name = QString::fromLatin1(own.getName());
                check(needScript.contains(name), locale, name + QStringLiteral(" needs its script"));
                continue;
            }
            ++compared;
            for (const auto style : {icu::DateFormat::kShort, icu::DateFormat::kMedium, icu::DateFormat::kFull}) {
                check(writtenBy(Locale::toICU(locale), style) == writtenBy(gregorian, style), locale,
                      writtenBy(Locale::toICU(locale), style) + QStringLiteral(" instead of ") +
                          writtenBy(gregorian, style));
            }
            const std::unique_ptr<icu::NumberFormat> percent(icu::NumberFormat::createPercentInstance(own, status));
            percent->setMaximumFractionDigits(1);
            icu::UnicodeString text;
            check(toPercentageString(locale, 0.256, 1, 0) == String::toQt(percent->format(0.256, text)), locale,
                  toPercentageString(locale, 0.256, 1, 0) + QStringLiteral(" instead of ") + String::toQt(text));
        }
        failIfAny();
        QVERIFY2(compared > all.size() / 2, qPrintable(QString::number(compared)));
    }

    void patterns_data() { clocks(); }

    void patterns()
    {
        const auto [clock] = cells<int>();
        QVERIFY(setClock(clock));
        MessageLog log;
        for (const QLocale& locale : m_locales) {
            for (const DateFormat::Type length : lengths) {
                const auto qtLength = length == DateFormat::Short || length == DateFormat::Medium ? QLocale::ShortFormat
                                                                                                  : QLocale::LongFormat;
                checkPattern(locale, dateFormat(locale, length), locale.dateFormat(qtLength), false);
                checkPattern(locale, timeFormat(locale, length), locale.timeFormat(qtLength), true);
                checkPattern(locale, dateTimeFormat(locale, length), locale.dateTimeFormat(qtLength), true);
                checkRoundTrip(locale, dateFormat(locale, length));
            }
        }
        finish(log.take());
    }

    void customDates_data() { clocks(); }

    void customDates()
    {
        const auto [clock] = cells<int>();
        QVERIFY(setClock(clock));
        MessageLog log;
        CustomDateFormatter formatter(skeletons.first());
        for (const QLocale& locale : m_locales) {
            m_root.setRegion(locale.bcp47Name().toLatin1());
            for (const QString& skeleton : skeletons) {
                const bool hasHours = skeleton.contains(QLatin1Char('h'), Qt::CaseInsensitive);
                if (m_is24Hour && !hasHours) {
                    continue; // the same as under the other clock
                }
                formatter.setSkeleton(skeleton);
                const QString text = formatter.format(moment);
                check(!text.isEmpty(), locale, QStringLiteral("no text for ") + skeleton);
                if (hasHours) {
                    check(digits(text).contains(QLatin1String("15")) == m_is24Hour, locale,
                          QStringLiteral("wrong clock in ") + text);
                }
            }
        }
        finish(log.take());
    }

    void relativeDates_data() { clocks(); }

    void relativeDates()
    {
        const auto [clock] = cells<int>();
        QVERIFY(setClock(clock));
        MessageLog log;
        constexpr qint64 minute = 60;
        constexpr qint64 hour = 60 * minute;
        constexpr qint64 day = 24 * hour;
        constexpr std::array<qint64, 10> distances{364 * day, 59,      minute,  59 * minute, hour,
                                                   6 * hour,  1 * day, 3 * day, 30 * day,    400 * day};
        for (const auto type : {RelativeDateFormat::TimeCritical, RelativeDateFormat::NonTimeCritical}) {
            RelativeDateFormatter formatter(type);
            formatter.setAnchorTime(moment);
            for (const QLocale& locale : m_locales) {
                formatter.setLocale(locale);
                if (type == RelativeDateFormat::TimeCritical) {
                    checkPhrases(locale, formatter);
                    checkNow(locale, formatter);
                }
                checkNamedDays(locale, formatter);
                for (const qint64 distance : distances) {
                    for (const qint64 seconds : {-distance, distance}) {
                        check(!formatter.format(moment.addSecs(seconds)).isEmpty(), locale,
                              QStringLiteral("no text for %1 s").arg(seconds));
                    }
                }
            }
        }
        QCOMPARE(log.take(), QStringList());
        failIfAny();
    }

    void cleanupTestCase() { std::printf("%zu locales, %d checks\n", m_locales.size(), m_checks); }

private:
    static void clocks()
    {
        const NamedRow<int> row;
        row("12", 12);
        row("24", 24);
    }

    bool setClock(int hours)
    {
        m_is24Hour = hours == 24;
        return m_root.setClock(QByteArray::number(hours)) &&
               QTest::qWaitFor([hours] { return ClockSetting::clockFormat() == hours; }, 2000);
    }

    void check(bool holds, const QLocale& locale, const QString& what)
    {
        ++m_checks;
        if (!holds) {
            m_failures.append(locale.name() + QStringLiteral(": ") + what);
        }
    }

    void checkPattern(const QLocale& locale, const QString& pattern, const QString& qtPattern, bool hasTime)
    {
        check(!locale.toString(moment, pattern).isEmpty(), locale, QStringLiteral("no text"));
        // If ICU's pattern has a field that Qt lacks, Qt's pattern is used, which ignores the clock.
        if (pattern == qtPattern) {
            return;
        }
        check(!hasStrayLetter(pattern), locale, QStringLiteral("stray letter in ") + pattern);
        if (hasTime) {
            check(showsAmPm(pattern) != m_is24Hour, locale, QStringLiteral("wrong clock in ") + pattern);
            checkAmPm(locale, pattern);
        }
    }

    // AM/PM is at ICU's position and splits nothing that belongs together.
    void checkAmPm(const QLocale& locale, const QString& pattern)
    {
        if (m_is24Hour) {
            static const QRegularExpression space(QStringLiteral("[hms] ,"));
            check(!pattern.contains(space), locale, QStringLiteral("space in ") + pattern);
            return;
        }
        const icu::Locale icuLocale = Locale::toICU(locale);
        UErrorCode status = U_ZERO_ERROR;
        const std::unique_ptr<icu::DateTimePatternGenerator> generator(
            icu::DateTimePatternGenerator::createInstance(icuLocale, status));
        const std::unique_ptr<icu::DateFormat> own(
            icu::DateFormat::createDateTimeInstance(icu::DateFormat::kNone, icu::DateFormat::kShort, icuLocale));
        icu::UnicodeString ownPattern;
        static_cast<const icu::SimpleDateFormat&>(*own).toPattern(ownPattern);
        // Of all French locales, only Cameroon's has AM/PM in front. The others changed sides with ICU 76 or 78, or are
        // new there and have the zone in front of the time, and AM/PM with it.
        static const QStringList elsewhere{QStringLiteral("fr_CM"),  QStringLiteral("ii_CN"), QStringLiteral("ko_CN"),
                                           QStringLiteral("za_CN"),  QStringLiteral("cv_RU"), QStringLiteral("ta_LK"),
                                           QStringLiteral("tok_001")};
        if (sideOfAmPm(String::toQt(ownPattern)) == 0 && !elsewhere.contains(locale.name())) {
            const int expected = sideOfAmPm(String::toQt(generator->getBestPattern(u"hm", status)));
            const QString asInICU = withoutQuoted(pattern)
                                        .replace(QLatin1String("AP"), QLatin1String("a"))
                                        .replace(QLatin1String("ap"), QLatin1String("a"));
            check(sideOfAmPm(asInICU) == expected, locale, QStringLiteral("other side than ICU in ") + pattern);
        }
        static const QRegularExpression torn(QStringLiteral("([(,] ?(AP|ap) ?t)|(ss?|mm?|h) ?(AP|ap) ?'"));
        check(!pattern.contains(torn), locale, QStringLiteral("torn apart: ") + pattern);
    }

    // The names of days are those of ICU's formatter, without the punctuation of a weekday.
    void checkNamedDays(const QLocale& locale, const RelativeDateFormatter& formatter)
    {
        UErrorCode status = U_ZERO_ERROR;
        const icu::RelativeDateTimeFormatter names(Locale::toICU(locale), status);
        for (const auto& [direction, days] : {std::pair{UDAT_DIRECTION_LAST, -1}, std::pair{UDAT_DIRECTION_NEXT, 1}}) {
            icu::UnicodeString name;
            names.format(direction, UDAT_ABSOLUTE_DAY, name, status);
            const QString text = formatter.format(moment.addDays(days));
            const auto position = text.indexOf(String::toQt(name));
            check(position != -1, locale, text + QStringLiteral(" without ") + String::toQt(name));
            const QString around =
                position == -1 ? QString() : text.mid(position - 1, 1) + text.mid(position + name.length(), 1);
            static const QRegularExpression punctuation(QStringLiteral("[\\p{Ps}\\p{Pe}.]"));
            check(!around.contains(punctuation), locale, QStringLiteral("punctuation of a weekday: ") + text);
        }
    }

    // The word for now is that of ICU's formatter, unless that is the root's.
    void checkNow(const QLocale& locale, RelativeDateFormatter& formatter)
    {
        UErrorCode status = U_ZERO_ERROR;
        icu::UnicodeString expected;
        icu::RelativeDateTimeFormatter(Locale::toICU(locale), status)
            .format(UDAT_DIRECTION_PLAIN, UDAT_ABSOLUTE_NOW, expected, status);
        const QString zero = formatter.format(moment);
        formatter.setWording(RelativeDateWording::Natural);
        const QString now = formatter.format(moment);
        formatter.setWording(RelativeDateWording::Exact);
        const bool isOwn = now == String::toQt(expected) && now != zero;
        const bool isRoots = now == zero && expected == u"now" && locale.language() != QLocale::English;
        check(U_SUCCESS(status) && (isOwn || isRoots), locale,
              now + QStringLiteral(" instead of ") + String::toQt(expected));
    }

    // The phrases are those of ICU's formatter, without the rest of its text.
    void checkPhrases(const QLocale& locale, const RelativeDateFormatter& formatter)
    {
        UErrorCode status = U_ZERO_ERROR;
        const icu::RelativeDateTimeFormatter phrases(Locale::toICU(locale), status);
        for (const auto& [unit, element, seconds] : {std::tuple{UDAT_REL_UNIT_MINUTE, RelativeDateElement::Minutes, 60},
                                                     std::tuple{UDAT_REL_UNIT_HOUR, RelativeDateElement::Hours, 3600},
                                                     std::tuple{UDAT_REL_UNIT_YEAR, RelativeDateElement::Years, 0}}) {
            const ResourceFormatter table(locale, element, nullptr);
            for (const int count :
                 {-1'000'000, -100, -21, -11, -5, -3, -2, -1, 0, 1, 2, 3, 5, 11, 21, 100, 1'000'000}) {
                icu::UnicodeString expected;
                phrases.formatNumeric(count, unit, expected, status);
                const bool isShown = seconds != 0 && count != 0 && qAbs(count) <= 5;
                const QString text =
                    isShown ? formatter.format(moment.addSecs(qint64(count) * seconds)) : table.format(count);
                check(U_SUCCESS(status) && text == String::toQt(expected), locale,
                      text + QStringLiteral(" instead of ") + String::toQt(expected));
            }
        }
    }

    // A date formatted with year, month and day is parsed as the same date.
    void checkRoundTrip(const QLocale& locale, const QString& pattern)
    {
        // Qt 5 reads ASCII digits only, and Qt 6 none beyond the BMP (Chakma, Adlam).
        const QString plain = QStringLiteral("yyyy-MM-dd");
        if (locale.toDate(locale.toString(moment.date(), plain), plain) != moment.date()) {
            return;
        }
        check(locale.toDate(locale.toString(moment.date(), pattern), pattern) == moment.date(), locale,
              QStringLiteral("%1 is not read with %2").arg(locale.toString(moment.date(), pattern), pattern));
    }

    void finish(const QStringList& messages)
    {
        static const QString unsupported =
            QStringLiteral("warning: zel::utility::i18n::Formatting::replaceWithSystemClockFormat() has encountered an "
                           "unsupported time format! ");
        for (const QString& message : messages) {
            // A 12-hour pattern with AM/PM at an unexpected position for its language.
            if (!m_is24Hour || message != unsupported) {
                m_failures.append(message);
            }
        }
        failIfAny();
    }

    void failIfAny()
    {
        const QStringList failures = std::exchange(m_failures, {});
        QVERIFY2(failures.isEmpty(), qPrintable(failures.mid(0, 10).join(QLatin1Char('\n'))));
    }

    SettingsRoot m_root;
    bool m_is24Hour = false;
    QStringList m_failures;
    const std::vector<QLocale> m_locales = qtLocales();
    int m_checks = 0;
};

QTEST_GUILESS_MAIN(SweepTest)
#include "tst_sweep.moc"
