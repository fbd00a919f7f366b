// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Failures of each ICU call: the messages, the result, and no leak.

#include "bridge/Locale.h"
#include "patterns/DatePattern.h"
#include "relative/RelativeDate.h"
#include "resources/NumericResourceAccessor.h"
#include "resources/PluralResourceAccessor.h"
#include "settings/ClockSetting.h"
#include "support/IcuFaults.h"
#include "support/MessageLog.h"
#include "support/Rows.h"
#include "support/SettingsRoot.h"
#include "support/ZoneName.h"
#include <functional>
#include <memory>
#include <QtTest/QTest>
#include <utility>
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/Formatting.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;
using Call = QString (*)();

Q_DECLARE_METATYPE(IcuFaults::Function)
Q_DECLARE_METATYPE(Call)

namespace {

constexpr int works = IcuFaults::Works;
constexpr int late = IcuFaults::FailsLate;
constexpr int null = IcuFaults::ReturnsNull;
constexpr int atOnce = IcuFaults::FailsAtOnce;
constexpr int missing = U_MISSING_RESOURCE_ERROR;

const QLocale austrian(QStringLiteral("de_AT"));
const QDateTime moment = QDateTime::fromString(QStringLiteral("2012-05-01T12:25Z"), Qt::ISODate);
const QDateTime anchor = QDateTime::fromString(QStringLiteral("2012-05-01T10:00Z"), Qt::ISODate);

const Call localeName = [] { return QString::fromLatin1(Locale::toICU(austrian).getName()); };
const Call mediumDate = [] { return dateFormat(austrian, DateFormat::Medium); };
const Call shortTime = [] { return timeFormat(austrian, DateFormat::Short); };
const Call mediumDateTime = [] { return dateTimeFormat(austrian, DateFormat::Medium); };
const Call percentage = [] { return toPercentageString(austrian, 0.5, 0, 0); };
const Call bestPattern = [] { return DatePattern::patternFromSkeleton(QStringLiteral("yMd"), austrian); };
const Call formatted = [] { return DatePattern::formatFromPattern(QStringLiteral("HH:mm"), moment, austrian); };
const Call bundle = [] {
    const std::unique_ptr<icu::ResourceBundle> found(
        ResourceAccessor::initResource(icu::Locale("de_AT"), {QStringLiteral("units"), QStringLiteral("minute-past")}));
    return found ? QString::fromLatin1(found->getKey()) : QString();
};
const Call today = [] {
    return NumericResourceAccessor(austrian, RelativeDate::resourcePath(RelativeDateElement::NamedDays, true), nullptr)
        .format(0);
};
const Call fiveMinutesAgo = [] {
    return PluralResourceAccessor(austrian, RelativeDate::resourcePath(RelativeDateElement::Minutes, true), nullptr)
        .format(5);
};
const Call hourOffset = [] {
    return QString::number(RelativeDate::offset(anchor, moment, RelativeDateElement::Hours));
};
const Call minuteDifference = [] {
    return QString::number(RelativeDate::difference(anchor, moment, RelativeDateElement::Minutes, false));
};
const Call custom = [] { return CustomDateFormatter("yMd", nullptr).format(moment); };

// The previous pattern stays in use if the next skeleton fails.
QString customAgain()
{
    CustomDateFormatter formatter(QStringLiteral("yMd"), nullptr);
    formatter.setSkeleton(QStringLiteral("yMMMM"));
    return formatter.format(moment);
}

// Lets the message handler act on the next message, and drops all others.
class Interruption
{
public:
    explicit Interruption(std::function<void()> action) : m_previous(qInstallMessageHandler(&Interruption::handle))
    {
        s_action = std::move(action);
    }
    ~Interruption() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY_MOVE(Interruption)

    static bool happened() { return !s_action; }

private:
    static void handle(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/)
    {
        if (const auto action = std::exchange(s_action, nullptr)) {
            action();
        }
    }

    inline static std::function<void()> s_action;
    QtMessageHandler m_previous;
};

// The first read of the zone fails; the text has the skeleton of the time of the call.
QString otherSkeletonDuringFormat()
{
    CustomDateFormatter formatter(QStringLiteral("yMdz"));
    const Interruption interruption([&formatter] {
        formatter.setSkeleton(QStringLiteral("yMMMM"));
        formatter.format(moment);
    });
    const QString text = formatter.format(moment);
    return text + QLatin1Char('|') + formatter.format(moment);
}

// The clock is invalid; the newer skeleton stays.
QString otherSkeletonDuringUpdate()
{
    CustomDateFormatter formatter(QStringLiteral("yMd"));
    const Interruption interruption([&formatter] { formatter.setSkeleton(QStringLiteral("yMMMM")); });
    formatter.setSkeleton(QStringLiteral("hm"));
    return formatter.format(moment);
}

// Values that the handler sets stay.
QString otherClockDuringUpdate()
{
    RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
    formatter.setAnchorTime(moment);
    const Interruption interruption([&formatter] { formatter.setClockFormat(ClockFormat::Use24hourClock); });
    formatter.setClockFormat(static_cast<ClockFormat::Type>(99));
    return formatter.format(moment.addDays(2)) + QLatin1Char('|') + formatter.format(moment.addDays(1));
}

QString otherTypeDuringFormat()
{
    RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
    formatter.setAnchorTime(moment);
    IcuFaults::arm(IcuFaults::SetTime, {late});
    QString during;
    const Interruption interruption([&formatter, &during] {
        formatter.setType(RelativeDateFormat::NonTimeCritical);
        formatter.setAnchorTime(moment);
        during = formatter.format(moment.addDays(-1));
        formatter.setType(RelativeDateFormat::TimeCritical);
    });
    const QString text = formatter.format(moment.addSecs(-300));
    return text + QLatin1Char('|') + during;
}

// The moment in the middle cannot be formatted; those after it count from the new anchor.
QString listWithChange(const std::function<void(RelativeDateFormatter&)>& change)
{
    RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
    formatter.setAnchorTime(moment);
    IcuFaults::arm(IcuFaults::FormatDate, {works, late});
    const Interruption interruption([&] { change(formatter); });
    return formatter.formatAll({moment, moment.addYears(10'000), moment}).join(QLatin1Char('|'));
}

QString otherAnchorDuringList()
{
    return listWithChange([](RelativeDateFormatter& formatter) { formatter.setAnchorTime(moment.addSecs(300)); });
}

QString otherTypeDuringList()
{
    return listWithChange([](RelativeDateFormatter& formatter) {
        formatter.setType(RelativeDateFormat::NonTimeCritical);
        formatter.setAnchorTime(moment.addDays(1));
    });
}

// The messages of a failed call, each line without its trailing space.
QStringList lines(const char* text)
{
    QStringList result;
    for (const QString& line : QString::fromLatin1(text).split(QLatin1Char('\n'))) {
        result.append(line + QLatin1Char(' '));
    }
    return result;
}

} // namespace

class IcuErrorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_settings.setClock("12"));
        QVERIFY(m_settings.setRegion("en_US"));
    }

    void failures_data()
    {
        addColumns<IcuFaults::Function, QList<int>, Call, QString, QStringList>();

        const auto row = [](const char* name, IcuFaults::Function function, const QList<int>& fates, Call call,
                            const QString& result, const char* messages = nullptr) {
            QTest::newRow(name) << function << fates << call << result
                                << (messages == nullptr ? QStringList() : lines(messages));
        };
        // Works without the keyword, too.
        row("keyword", IcuFaults::SetKeywordValue, {atOnce}, localeName, "de_AT",
            "warning: Error in calling icu::Locale::setKeywordValue( const char *, const char *, UErrorCode & ) : "
            "U_MEMORY_ALLOCATION_ERROR\n"
            "warning: static icu::Locale zel::utility::i18n::Locale::toICU(const QLocale&) could not set gregorian "
            "calendar "
            "on de_AT locale");
        row("keyword of a format", IcuFaults::SetKeywordValue, {atOnce}, mediumDate, "dd.MM.yyyy",
            "warning: Error in calling icu::Locale::setKeywordValue( const char *, const char *, UErrorCode & ): "
            "U_MEMORY_ALLOCATION_ERROR\n"
            "warning: zel::utility::i18n::getICULocale could not set gregorian calendar on de_AT locale");

        // Qt's own formats, which do not follow the clock.
        row("date", IcuFaults::CreateDateTimeInstance, {null}, mediumDate, austrian.dateFormat(QLocale::ShortFormat));
        row("time", IcuFaults::CreateDateTimeInstance, {null}, shortTime, austrian.timeFormat(QLocale::ShortFormat));
        row("date and time", IcuFaults::CreateDateTimeInstance, {null}, mediumDateTime,
            austrian.dateTimeFormat(QLocale::ShortFormat));
        row("percentage", IcuFaults::CreatePercentInstance, {atOnce}, percentage, {});
        row("percentage, late", IcuFaults::CreatePercentInstance, {late}, percentage, {});
        row("percentage, null", IcuFaults::CreatePercentInstance, {null}, percentage, {});

#define GENERATOR "icu::DateTimePatternGenerator::createInstance( const icu::Locale &, UErrorCode & )"
#define BEST_PATTERN "icu::DateTimePatternGenerator::getBestPattern( const icu::UnicodeString &, UErrorCode & )"
#define DATE_FORMAT                                                                                                    \
    "icu::SimpleDateFormat::SimpleDateFormat( const icu::UnicodeString &, const icu::Locale &, UErrorCode & )"
#define FORMAT_DATE "icu::SimpleDateFormat::format( UDate, icu::UnicodeString &, UErrorCode & )"
#define SKELETON                                                                                                       \
    "\ndebug: static QString zel::utility::i18n::DatePattern::patternFromSkeleton(const QString&, const QLocale&) "
#define PATTERN                                                                                                        \
    "\nwarning: static QString zel::utility::i18n::DatePattern::formatFromPattern(const QString&, const QDateTime&, "  \
    "const QLocale&) "
        row("generator", IcuFaults::CreateGenerator, {atOnce}, bestPattern, {},
            "warning: Error in calling " GENERATOR ": U_MEMORY_ALLOCATION_ERROR" SKELETON
            "could not instantiate icu::DateTimePatternGenerator");
        row("generator, late", IcuFaults::CreateGenerator, {late}, bestPattern, {},
            "warning: Error in calling " GENERATOR ": U_INTERNAL_PROGRAM_ERROR" SKELETON
            "could not instantiate icu::DateTimePatternGenerator");
        row("generator, null", IcuFaults::CreateGenerator, {null}, bestPattern, {},
            "warning: " GENERATOR " returned a NULL pointer without setting an error code!" SKELETON
            "could not instantiate icu::DateTimePatternGenerator");
        row("best pattern", IcuFaults::GetBestPattern, {late}, bestPattern, {},
            "warning: Error in calling " BEST_PATTERN ": U_INTERNAL_PROGRAM_ERROR" SKELETON
            "could not parse the skeleton");
        row("date format", IcuFaults::CreateDateFormat, {late}, formatted, {},
            "warning: Error in calling " DATE_FORMAT ": U_INTERNAL_PROGRAM_ERROR" PATTERN
            "could not instantiate date formatter");
        row("formatting", IcuFaults::FormatDate, {late}, formatted, {},
            "warning: Error in calling " FORMAT_DATE ": U_INTERNAL_PROGRAM_ERROR" PATTERN "failed to format date/time");

#define INIT                                                                                                           \
    "static icu::ResourceBundle* zel::utility::i18n::ResourceAccessor::initResource(const icu::Locale&, const "        \
    "QStringList&) "
#define GET_FAILED                                                                                                     \
    "warning: Error in calling icu::ResourceBundle::get( const char *, UErrorCode & ) : U_INTERNAL_PROGRAM_ERROR\n"    \
    "warning: " INIT "failed to access resource key "
        row("bundle", IcuFaults::OpenBundle, {atOnce}, bundle, {},
            "critical: " INIT "icu::ResourceBundle::ResourceBundle( const char *, const icu::Locale &, UErrorCode & )\n"
            "critical: " INIT "failed to open resource bundle for locale de_AT");
        row("first key", IcuFaults::GetResource, {late}, bundle, {}, GET_FAILED "\"units\" in locale de_AT");
        row("second key", IcuFaults::GetResource, {works, late}, bundle, {},
            GET_FAILED "\"minute-past\" in locale de_AT");

        // The next locale of the chain has the phrases, too.
        row("named days", IcuFaults::GetString, {works, late}, today, "heute",
            "warning: Error in calling icu::ResourceBundle::getStringEx( const char *, UErrorCode & ) : "
            "U_INTERNAL_PROGRAM_ERROR");

#define PLURAL                                                                                                         \
    "zel::utility::i18n::PluralResourceAccessor::PluralResourceAccessor(const QLocale&, const QStringList&, "          \
    "QObject*) "
#define PLURAL_FORMAT "virtual QString zel::utility::i18n::PluralResourceAccessor::format(int) const "
#define INVALID "\ncritical: " PLURAL_FORMAT "called on an invalid resource"
#define RULES "icu::PluralRules::forLocale( const icu::Locale &, UErrorCode & )"
#define NUMBERS "icu::NumberFormat::createInstance( const icu::Locale &, UErrorCode & )"
#define FAILED(factory, error, consequence)                                                                            \
    "critical: Error in calling " factory " : " error "\ncritical: " PLURAL consequence INVALID
#define NOTHING(factory, consequence)                                                                                  \
    "warning: " factory " returned a NULL pointer without setting an error code!\nwarning: " PLURAL consequence INVALID
        row("plural rules", IcuFaults::ForLocale, {late}, fiveMinutesAgo, {},
            FAILED(RULES, "U_INTERNAL_PROGRAM_ERROR", "failed to instantiate plural rules"));
        row("plural rules, null", IcuFaults::ForLocale, {null}, fiveMinutesAgo, {},
            NOTHING(RULES, "failed to instantiate plural rules"));
        row("root numbers", IcuFaults::CreateNumberFormat, {atOnce}, fiveMinutesAgo, {},
            FAILED(NUMBERS, "U_MEMORY_ALLOCATION_ERROR", "failed to instantiate root number formatting"));
        row("root numbers, null", IcuFaults::CreateNumberFormat, {null}, fiveMinutesAgo, {},
            NOTHING(NUMBERS, "failed to instantiate root number formatting"));
        row("numbers", IcuFaults::CreateNumberFormat, {works, late}, fiveMinutesAgo, {},
            FAILED(NUMBERS, "U_INTERNAL_PROGRAM_ERROR", "failed to instantiate number formatting"));
        row("numbers, null", IcuFaults::CreateNumberFormat, {works, null}, fiveMinutesAgo, {},
            NOTHING(NUMBERS, "failed to instantiate number formatting"));
        row("last entry is there", IcuFaults::GetString, {missing, missing}, fiveMinutesAgo, "vor 5 Minuten");

#define OFFSET                                                                                                         \
    "static int zel::utility::i18n::RelativeDate::offset(const QDateTime&, const QDateTime&, "                         \
    "zel::utility::i18n::RelativeDateElement::Type) "
#define DIFFERENCE                                                                                                     \
    "static int zel::utility::i18n::RelativeDate::difference(const QDateTime&, const QDateTime&, "                     \
    "zel::utility::i18n::RelativeDateElement::Type, bool) "
#define CALENDAR "icu::Calendar::createInstance( icu::TimeZone *, UErrorCode & )"
#define CALENDAR_ROWS(name, call, signature, ...)                                                                      \
    row(name ", zone", IcuFaults::GetGMT, {null}, call, "0",                                                           \
        "warning: icu::TimeZone::getGMT() returned a NULL pointer!\ndebug: " signature                                 \
        "failed to set up a time zone");                                                                               \
    row(name ", zone's clone", IcuFaults::GetGMT, {atOnce}, call, "0",                                                 \
        "warning: icu::TimeZone::clone() returned a NULL pointer!\ndebug: " signature "failed to set up a time zone"); \
    row(name ", calendar", IcuFaults::CreateCalendar, {__VA_ARGS__ atOnce}, call, "0",                                 \
        "warning: Error in calling " CALENDAR ": U_MEMORY_ALLOCATION_ERROR\nwarning: " signature                       \
        "failed to instantiate a calendar");                                                                           \
    row(name ", calendar, late", IcuFaults::CreateCalendar, {__VA_ARGS__ late}, call, "0",                             \
        "warning: Error in calling " CALENDAR ": U_INTERNAL_PROGRAM_ERROR\nwarning: " signature                        \
        "failed to instantiate a calendar");                                                                           \
    row(name ", calendar, null", IcuFaults::CreateCalendar, {__VA_ARGS__ null}, call, "0",                             \
        "warning: " CALENDAR " returned a NULL pointer without setting an error code!\ndebug: " signature              \
        "failed to instantiate a calendar");                                                                           \
    row(name ", time", IcuFaults::SetTime, {__VA_ARGS__ late}, call, "0",                                              \
        "warning: Error in calling icu::Calendar::setTime( UDate, UErrorCode & ): "                                    \
        "U_INTERNAL_PROGRAM_ERROR\nwarning: " signature "failed to set up a calendar")
        CALENDAR_ROWS("offset", hourOffset, OFFSET, );
        CALENDAR_ROWS("offset, second", hourOffset, OFFSET, works, );
        CALENDAR_ROWS("difference", minuteDifference, DIFFERENCE, );

#define UPDATE "\nwarning: void zel::utility::i18n::CustomDateFormatterPrivate::updateFormatter() const "
#define CUSTOM_FORMAT "QString zel::utility::i18n::CustomDateFormatter::format(const QDateTime&) const "
#define CUSTOM_ROWS(name, function, icu, consequence)                                                                  \
    row(name, IcuFaults::function, {late}, custom, {},                                                                 \
        "warning: Error in calling " icu " : U_INTERNAL_PROGRAM_ERROR" UPDATE consequence "\ncritical: " CUSTOM_FORMAT \
        "called on invalid formatter");                                                                                \
    row(name ", second build", IcuFaults::function, {works, atOnce}, customAgain, "5/1/2012",                          \
        "warning: Error in calling " icu " : U_MEMORY_ALLOCATION_ERROR" UPDATE consequence)
        CUSTOM_ROWS("custom, generator", CreateGenerator, GENERATOR, "could not instantiate  the pattern generator");
        row("custom, generator, null", IcuFaults::CreateGenerator, {works, null}, customAgain, "5/1/2012",
            "warning: " GENERATOR " returned a NULL pointer without setting an error code!" UPDATE
            "could not instantiate  the pattern generator");
        CUSTOM_ROWS("custom, best pattern", GetBestPattern, BEST_PATTERN, "could not parse the skeleton");
        CUSTOM_ROWS("custom, date format", CreateDateFormat, DATE_FORMAT, "could not instantiate the date format");
        row("custom, formatting", IcuFaults::FormatDate, {late}, custom, {},
            "warning: Error in calling " FORMAT_DATE " : U_INTERNAL_PROGRAM_ERROR\nwarning: " CUSTOM_FORMAT
            "failed to format date/time");
    }

    void failures()
    {
        const auto [function, fates, call, result, messages] =
            cells<IcuFaults::Function, QList<int>, Call, QString, QStringList>();
        MessageLog log;

        IcuFaults::arm(function, fates);
        const QString actual = call();
        QVERIFY(IcuFaults::allTaken(function));
        QCOMPARE(log.take(), messages);
        QCOMPARE(actual, result);
        QCOMPARE(actual.isNull(), result.isNull());
    }

    void listsFail_data()
    {
        QTest::addColumn<IcuFaults::Function>("function");
        for (const auto function :
             {IcuFaults::CreateDateFormat, IcuFaults::FormatDate, IcuFaults::OpenBundle, IcuFaults::GetResource,
              IcuFaults::GetString, IcuFaults::ForLocale, IcuFaults::CreateNumberFormat, IcuFaults::CreateCalendar,
              IcuFaults::SetTime, IcuFaults::SetKeywordValue}) {
            QTest::addRow("%d", function) << function;
        }
    }

    // While ICU fails, a list has the texts and messages of its moments one by one.
    void listsFail()
    {
        QFETCH(IcuFaults::Function, function);
        const QList<int> fails = QVector<int>(1000, late).toList();
        RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
        formatter.setLocale(austrian);
        formatter.setAnchorTime(moment);
        formatter.setWording(RelativeDateWording::Natural);
        const QList<QDateTime> list{moment, moment.addSecs(-300), moment.addDays(-1), moment.addDays(-2),
                                    moment.addDays(-9)};
        MessageLog log;
        IcuFaults::arm(function, fails);
        const QStringList texts = formatter.formatAll(list);
        const QStringList messages = log.take();
        QVERIFY(!messages.isEmpty());
        QStringList oneByOne;
        IcuFaults::arm(function, fails);
        for (const QDateTime& each : list) {
            oneByOne.append(formatter.format(each));
        }
        IcuFaults::arm(function, {});
        QCOMPARE(texts, oneByOne);
        QCOMPARE(messages, log.take());
    }

    void handlersUseTheFormatter_data()
    {
        const NamedRow<Call, QString> row;
        row("skeleton in format", Call(otherSkeletonDuringFormat),
            "5/1/2012, " + zoneName({}, moment, icu::Locale::getUS()) + "|May 2012");
        row("skeleton in an update", Call(otherSkeletonDuringUpdate), "May 2012");
        row("clock in an update", Call(otherClockDuringUpdate), "Thu 12:25|tomorrow 12:25");
        row("type in format", Call(otherTypeDuringFormat), "5 minutes ago|yesterday");
        row("anchor in a list", Call(otherAnchorDuringList), "in 0 minutes||5 minutes ago");
        row("type in a list", Call(otherTypeDuringList), "in 0 minutes||yesterday");
    }

    void handlersUseTheFormatter()
    {
        const auto [call, texts] = cells<Call, QString>();
        QVERIFY(m_settings.setClock("13"));
        MessageLog log;
        // The clock is unknown from this message on.
        QVERIFY(QTest::qWaitFor([&log] {
            ClockSetting::clockFormat();
            return !log.take().isEmpty();
        }));
        QCOMPARE(call(), texts);
        QVERIFY(Interruption::happened());
    }

private:
    SettingsRoot m_settings;
};

QTEST_GUILESS_MAIN(IcuErrorsTest)
#include "tst_icuerrors.moc"
