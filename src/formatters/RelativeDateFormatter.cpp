#include <zel/utility/i18n/RelativeDateFormatter.h>

#include "bridge/DateTime.h"
#include "bridge/Diagnostic.h"
#include "bridge/Locale.h"
#include "formatters/RelativeDateFormatter_p.h"
#include "relative/DateOffsetRange.h"
#include "relative/RelativeDatePattern.h"
#include <algorithm>
#include <iterator>
#include <utility>

namespace zel::utility::i18n {

namespace {

enum class Counting { Calendar, Elapsed };
enum class Side { After, AtOrBefore };
enum class Shown { Plain, Relative };

/** A step of the ladder: which moments it takes, and how it shows them. */
struct Slot
{
    RelativeDateElement::Type element;
    unsigned int minimum;
    Counting counting;
    Side side;
    const char* skeleton;
    Shown shown;
};

// The first slot that takes a moment shows it: the after side first, and on each side the coarsest test first.
constexpr Slot timeCritical[] = {
    {RelativeDateElement::Years, 1, Counting::Calendar, Side::After, "yMMMM", Shown::Plain},
    {RelativeDateElement::NamedDays, 4, Counting::Calendar, Side::After, "MMMd", Shown::Plain},
    {RelativeDateElement::NamedDays, 2, Counting::Calendar, Side::After, "Ejm", Shown::Plain},
    {RelativeDateElement::NamedDays, 1, Counting::Calendar, Side::After, "Ejm", Shown::Relative},
    {RelativeDateElement::Hours, 1, Counting::Elapsed, Side::After, "H", Shown::Relative},
    {RelativeDateElement::Minutes, 0, Counting::Elapsed, Side::After, "m", Shown::Relative},
    {RelativeDateElement::Years, 1, Counting::Calendar, Side::AtOrBefore, "yMMMM", Shown::Plain},
    {RelativeDateElement::NamedDays, 4, Counting::Calendar, Side::AtOrBefore, "MMMd", Shown::Plain},
    {RelativeDateElement::NamedDays, 2, Counting::Calendar, Side::AtOrBefore, "Ejm", Shown::Plain},
    {RelativeDateElement::NamedDays, 1, Counting::Calendar, Side::AtOrBefore, "Ejm", Shown::Relative},
    {RelativeDateElement::Hours, 1, Counting::Elapsed, Side::AtOrBefore, "H", Shown::Relative},
    {RelativeDateElement::Minutes, 0, Counting::Elapsed, Side::AtOrBefore, "m", Shown::Relative},
};
constexpr Slot nonTimeCritical[] = {
    {RelativeDateElement::Years, 1, Counting::Calendar, Side::After, "yMMMM", Shown::Plain},
    {RelativeDateElement::NamedDays, 4, Counting::Calendar, Side::After, "MMMd", Shown::Plain},
    {RelativeDateElement::NamedDays, 2, Counting::Calendar, Side::After, "EEEE", Shown::Plain},
    {RelativeDateElement::NamedDays, 0, Counting::Elapsed, Side::After, "E", Shown::Relative},
    {RelativeDateElement::Years, 1, Counting::Calendar, Side::AtOrBefore, "yMMMM", Shown::Plain},
    {RelativeDateElement::NamedDays, 4, Counting::Calendar, Side::AtOrBefore, "MMMd", Shown::Plain},
    {RelativeDateElement::NamedDays, 2, Counting::Calendar, Side::AtOrBefore, "EEEE", Shown::Plain},
    {RelativeDateElement::NamedDays, 0, Counting::Elapsed, Side::AtOrBefore, "E", Shown::Relative},
};

/** The slots of a type; none for an invalid one. */
struct Ladder
{
    const Slot* slots;
    int count;

    const Slot* begin() const { return slots; }
    const Slot* end() const { return slots + count; }
};

Ladder ladderOf(RelativeDateFormat::Type type)
{
    switch (type) {
    case RelativeDateFormat::TimeCritical:
        return {timeCritical, std::size(timeCritical)};
    case RelativeDateFormat::NonTimeCritical:
        return {nonTimeCritical, std::size(nonTimeCritical)};
    }
    return {nullptr, 0};
}

/** Counts the calls that are under way in an object, so that it outlives them. */
class Use
{
public:
    explicit Use(int& uses) : m_uses(uses) { ++m_uses; }
    ~Use() { --m_uses; }
    Q_DISABLE_COPY_MOVE(Use)

private:
    int& m_uses;
};

constexpr const char* constructorSignature =
    "zel::utility::i18n::RelativeDateFormatterPrivate::RelativeDateFormatterPrivate("
    "zel::utility::i18n::RelativeDateFormatter*, zel::utility::i18n::RelativeDateFormat::Type)";
constexpr const char* formatSignature =
    "QString zel::utility::i18n::RelativeDateFormatterPrivate::format(const QDateTime&) const";

} // namespace

RelativeDateFormatterPrivate::RelativeDateFormatterPrivate(RelativeDateFormatter* owner, RelativeDateFormat::Type table)
    : q(owner),
      type(table),
      anchorTime(QDateTime::currentDateTime()),
      locale(Locale::region())
{
    const Ladder ladder = ladderOf(type);
    count = ladder.count;
    if (count == 0) {
        Diagnostic::write(QtCriticalMsg, constructorSignature, "called with invalid format type",
                          static_cast<int>(type));
        return;
    }
    for (const Slot& slot : ladder) {
        ranges.push_back(std::make_unique<DateOffsetRange>(anchorTime, slot.element, slot.minimum,
                                                           slot.counting == Counting::Calendar,
                                                           slot.side == Side::AtOrBefore, this));
    }
    if (static_cast<int>(ranges.size()) < count) {
        Diagnostic::write(QtCriticalMsg, constructorSignature, "not enough ranges!");
    }
    for (const Slot& slot : ladder) {
        QList<RelativeDateElement::Type> elements;
        if (slot.shown == Shown::Relative) {
            elements.append(slot.element);
        }
        patterns.push_back(std::make_unique<RelativeDatePattern>(locale, clockFormat, anchorTime,
                                                                 QString::fromLatin1(slot.skeleton), elements, this));
    }
    if (static_cast<int>(patterns.size()) < count) {
        Diagnostic::write(QtCriticalMsg, constructorSignature, "not enough patterns!");
    }
}

RelativeDateFormatterPrivate::~RelativeDateFormatterPrivate() = default;

bool RelativeDateFormatterPrivate::setAnchorTime(const QDateTime& newAnchorTime)
{
    if (newAnchorTime == anchorTime) {
        return false;
    }
    anchorTime = newAnchorTime;
    for (std::size_t slot = 0; slot < ranges.size(); ++slot) {
        ranges[slot]->setAnchorTime(anchorTime);
        patterns[slot]->setAnchorTime(anchorTime);
    }
    return true;
}

bool RelativeDateFormatterPrivate::setLocale(const QLocale& newLocale)
{
    if (newLocale == locale) {
        return false;
    }
    const Use use(uses);
    locale = newLocale;
    for (const auto& pattern : patterns) {
        pattern->setLocale(locale);
    }
    return true;
}

bool RelativeDateFormatterPrivate::setClockFormat(ClockFormat::Type newClockFormat)
{
    if (newClockFormat == clockFormat) {
        return false;
    }
    const Use use(uses);
    clockFormat = newClockFormat;
    for (const auto& pattern : patterns) {
        pattern->setClockFormat(clockFormat);
    }
    return true;
}

void RelativeDateFormatterPrivate::keepWhileInUse(std::unique_ptr<RelativeDateFormatterPrivate> previous)
{
    std::move(previous->predecessors.begin(), previous->predecessors.end(), std::back_inserter(predecessors));
    previous->predecessors.clear();
    predecessors.push_back(std::move(previous));
    const auto idle = std::remove_if(predecessors.begin(), predecessors.end(),
                                     [](const auto& predecessor) { return predecessor->uses == 0; });
    predecessors.erase(idle, predecessors.end());
}

QString RelativeDateFormatterPrivate::format(const QDateTime& dateTime) const
{
    const Use use(uses);
    if (count == 0) {
        Diagnostic::write(QtWarningMsg, formatSignature, "cannot use malconstructed RelativeDateFormatterPrivate");
        return {};
    }
    // Day offsets compare days of the year: last November would pass for a later day than this May.
    const bool later = DateTime::wallClock(dateTime) > DateTime::wallClock(anchorTime);
    const Ladder ladder = ladderOf(type);
    for (std::size_t slot = 0; slot < ranges.size(); ++slot) {
        if (ladder.slots[slot].side == Side::After && !later) {
            continue;
        }
        if (ranges[slot]->contains(dateTime)) {
            return patterns[slot]->format(dateTime);
        }
    }
    Diagnostic::write(QtCriticalMsg, formatSignature,
                      "cannot find appropriate date range for given date-time:", dateTime);
    return {};
}

RelativeDateFormatter::RelativeDateFormatter(RelativeDateFormat::Type type, QObject* parent)
    : QObject(parent),
      d(std::make_unique<RelativeDateFormatterPrivate>(this, type))
{
}

RelativeDateFormatter::~RelativeDateFormatter() = default;

RelativeDateFormat::Type RelativeDateFormatter::type() const
{
    return d->type;
}

void RelativeDateFormatter::setType(RelativeDateFormat::Type type)
{
    if (type == d->type) {
        return;
    }
    auto previous = std::exchange(d, std::make_unique<RelativeDateFormatterPrivate>(this, type));
    Q_EMIT changed();
    d->keepWhileInUse(std::move(previous));
}

void RelativeDateFormatter::setLocale(const QLocale& locale)
{
    if (d->setLocale(locale)) {
        Q_EMIT changed();
    }
}

QString RelativeDateFormatter::format(const QDateTime& dateTime) const
{
    return d->format(dateTime);
}

void RelativeDateFormatter::setAnchorTime(const QDateTime& anchorTime)
{
    if (d->setAnchorTime(anchorTime)) {
        Q_EMIT changed();
    }
}

void RelativeDateFormatter::applyCurrentTimeAsAnchor()
{
    setAnchorTime(QDateTime::currentDateTime());
}

void RelativeDateFormatter::applyUserRegionLocale()
{
    setLocale(Locale::region());
}

void RelativeDateFormatter::setClockFormat(ClockFormat::Type format)
{
    if (d->setClockFormat(format)) {
        Q_EMIT changed();
    }
}

void RelativeDateFormatter::setClockFormat(int format)
{
    setClockFormat(static_cast<ClockFormat::Type>(format));
}

} // namespace zel::utility::i18n
