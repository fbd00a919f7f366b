// Calls the setters of a relative date formatter in any order and compares each text with a plain model: which step of
// the ladder a moment is on is read off the calendar, and the words are those of ICU's own formatters.

#include "MomentInput.h"
#include "Require.h"
#include "support/SettingsRoot.h"

#include "bridge/Locale.h"
#include "bridge/String.h"
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <memory>
#include <unicode/dtptngen.h>
#include <unicode/reldatefmt.h>
#include <unicode/smpdtfmt.h>
#include <utility>
#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

namespace {

using inputs::clocks;
using inputs::hour;
using inputs::locales;
using inputs::minute;
using inputs::types;

constexpr int firstYear = 1600; // from then on ICU and Qt have the same calendar

/** ICU's objects for a locale; they take milliseconds to make. */
struct Words
{
    explicit Words(const QLocale& locale)
        : icuLocale(zel::utility::i18n::Locale::toICU(locale)),
          patterns(icu::DateTimePatternGenerator::createInstance(icuLocale, status)),
          phrases(icuLocale, status)
    {
    }

    QString date(const char* skeleton, const QDateTime& moment)
    {
        icu::SimpleDateFormat format(patterns->getBestPattern(skeleton, status), icuLocale, status);
        format.adoptTimeZone(icu::TimeZone::getGMT()->clone());
        icu::UnicodeString text;
        return String::toQt(format.format(static_cast<UDate>(moment.toMSecsSinceEpoch()), text));
    }

    QString day(qint64 days)
    {
        const auto direction = days < 0 ? UDAT_DIRECTION_LAST : days > 0 ? UDAT_DIRECTION_NEXT : UDAT_DIRECTION_THIS;
        icu::UnicodeString text;
        return String::toQt(phrases.format(direction, UDAT_ABSOLUTE_DAY, text, status));
    }

    QString count(qint64 units, UDateRelativeUnit unit)
    {
        icu::UnicodeString text;
        return String::toQt(phrases.format(static_cast<double>(std::abs(units)),
                                           units < 0 ? UDAT_DIRECTION_LAST : UDAT_DIRECTION_NEXT, unit, text, status));
    }

    UErrorCode status = U_ZERO_ERROR;
    icu::Locale icuLocale;
    std::unique_ptr<icu::DateTimePatternGenerator> patterns;
    icu::RelativeDateTimeFormatter phrases;
};

Words& wordsOf(const QLocale& locale)
{
    static std::map<QString, Words> known;
    return known.try_emplace(locale.name(), locale).first->second;
}

/** What the formatter is set to, and its texts by the table in its documentation. */
struct Model
{
    int type = RelativeDateFormat::TimeCritical;
    int clock = ClockFormat::ApplyUserFormat;
    QLocale locale{QStringLiteral("en_US")};
    QDateTime anchor;

    // A weekday with the time; nothing where the clock is none.
    const char* weekdayAndTime() const
    {
        switch (clock) {
        case ClockFormat::ApplyLocaleFormat:
            return "Ejm";
        case ClockFormat::Use12hourClock:
            return "Ehm";
        case ClockFormat::ApplyUserFormat:
        case ClockFormat::Use24hourClock:
            return "EHm";
        default:
            return "";
        }
    }

    void requireText(const QString& text, const QDateTime& shown) const
    {
        const QDateTime here = asShown(anchor);
        const QDateTime moment = asShown(shown);
        Words& words = wordsOf(locale);
        const qint64 days = moment.date().dayOfYear() - here.date().dayOfYear();
        const bool showsTime = type == RelativeDateFormat::TimeCritical;
        const char* const weekday = showsTime ? weekdayAndTime() : "EEEE";
        if (type != RelativeDateFormat::TimeCritical && type != RelativeDateFormat::NonTimeCritical) {
            ZEL_REQUIRE(text.isNull());
        } else if (moment.date().year() != here.date().year()) {
            ZEL_REQUIRE(text == words.date("yMMMM", moment));
        } else if (std::abs(days) >= 4) {
            ZEL_REQUIRE(text == words.date("MMMd", moment));
        } else if (std::abs(days) >= 2) {
            ZEL_REQUIRE(text == words.date(weekday, moment));
        } else if (!showsTime) {
            ZEL_REQUIRE(text == words.day(days));
        } else if (days != 0) {
            ZEL_REQUIRE(*weekday == '\0' ? text.isEmpty() : text.contains(words.day(days)));
        } else {
            const qint64 distance = here.msecsTo(moment);
            ZEL_REQUIRE(text == (std::abs(distance) >= hour ? words.count(distance / hour, UDAT_RELATIVE_HOURS)
                                                            : words.count(distance / minute, UDAT_RELATIVE_MINUTES)));
        }
        ZEL_REQUIRE(U_SUCCESS(words.status));
    }

    // Only the date and the time that are shown count; an invalid moment is the epoch.
    static QDateTime asShown(const QDateTime& moment)
    {
        return moment.isValid() ? QDateTime(moment.date(), moment.time(), Qt::UTC)
                                : QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    }
};

/** A formatter and its model, and whether it says when it changes. */
class Pair
{
public:
    Pair() : m_formatter(RelativeDateFormat::TimeCritical)
    {
        ZEL_REQUIRE(
            QObject::connect(&m_formatter, &RelativeDateFormatter::changed, &m_formatter, [this] { ++m_changes; }));
        setAnchor(QDateTime(QDate(2012, 5, 16), QTime(10, 30), Qt::UTC));
    }

    void step(FuzzedDataProvider& input)
    {
        switch (input.ConsumeIntegralInRange(0, 5)) {
        case 0:
            setType(input.PickValueInArray(types));
            break;
        case 1:
            setLocale(QLocale(QLatin1String(input.PickValueInArray(locales))));
            break;
        case 2:
            setClock(input.PickValueInArray(clocks));
            break;
        case 3:
            setAnchor(inputs::moment(input, m_model.anchor, firstYear));
            break;
        default:
            const QDateTime moment = inputs::moment(input, m_model.anchor, firstYear);
            m_model.requireText(m_formatter.format(moment), moment);
        }
        ZEL_REQUIRE(m_formatter.type() == static_cast<RelativeDateFormat::Type>(m_model.type));
    }

private:
    void setType(int type)
    {
        const bool isOther = type != m_model.type;
        m_formatter.setType(static_cast<RelativeDateFormat::Type>(type));
        requireChange(isOther);
        if (isOther) {
            // The anchor is the present now, which no model knows.
            const QDateTime anchor = m_model.anchor;
            m_model = Model();
            m_model.type = type;
            setAnchor(anchor);
        }
    }

    void setLocale(const QLocale& locale)
    {
        m_formatter.setLocale(locale);
        requireChange(locale != m_model.locale);
        m_model.locale = locale;
    }

    void setClock(int clock)
    {
        m_formatter.setClockFormat(static_cast<ClockFormat::Type>(clock));
        requireChange(clock != m_model.clock);
        m_model.clock = clock;
    }

    void setAnchor(const QDateTime& anchor)
    {
        m_formatter.setAnchorTime(anchor);
        if (m_model.anchor.isNull() || anchor != m_model.anchor) {
            m_model.anchor = anchor;
        }
        m_changes = 0;
    }

    void requireChange(bool expected) { ZEL_REQUIRE(std::exchange(m_changes, 0) == (expected ? 1 : 0)); }

    RelativeDateFormatter m_formatter;
    Model m_model;
    int m_changes = 0;
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const SettingsRoot settings;
    [[maybe_unused]] static const bool isSet = settings.setClock("24") && settings.setRegion("en_US");
    constexpr int mostSteps = 64;
    FuzzedDataProvider input(data, size);
    Pair pair;
    for (int steps = 0; steps < mostSteps && input.remaining_bytes() > 0; ++steps) {
        pair.step(input);
    }
    return 0;
}
