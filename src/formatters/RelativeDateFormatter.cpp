// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include <zel/utility/i18n/RelativeDateFormatter.h>

#include "bridge/DateTime.h"
#include "bridge/Diagnostic.h"
#include "bridge/Locale.h"
#include "formatters/RelativeDateBatch.h"
#include "formatters/RelativeDateFormatter_p.h"
#include "relative/DateOffsetRange.h"
#include "relative/RelativeDatePattern.h"
#include "relative/RelativeDateValidity.h"
#include "relative/RelativeDistance.h"
#include "resources/NowWord.h"
#include "settings/ClockSetting.h"
#include "settings/RegionNotifier.h"
#include "settings/TimeZoneSetting.h"
#include <algorithm>
#include <iterator>
#include <memory>
#include <QtCore/QPointer>
#include <utility>

namespace zel::utility::i18n {

namespace {

// Counts the running calls of an object, so that it outlives them.
class Use
{
    Q_DISABLE_COPY_MOVE(Use)

public:
    explicit Use(int& uses) : m_uses(uses) { ++m_uses; }
    ~Use() { --m_uses; }

private:
    int& m_uses;
};

} // namespace

RelativeDateFormatterPrivate::RelativeDateFormatterPrivate(RelativeDateFormatter* owner,
                                                           RelativeDateFormat::Type requested)
    : q(owner),
      type(requested),
      table(requested),
      anchorTime(QDateTime::currentDateTime()),
      locale(Locale::region())
{
    constexpr const char* signature =
        "zel::utility::i18n::RelativeDateFormatterPrivate::RelativeDateFormatterPrivate("
        "zel::utility::i18n::RelativeDateFormatter*, zel::utility::i18n::RelativeDateFormat::Type)";
    count = table.size();
    if (count == 0) {
        Diagnostic::write(QtCriticalMsg, signature, "called with invalid format type", static_cast<int>(type));
        return;
    }
    for (const RelativeDateTable::Slot& slot : table) {
        ranges.push_back(std::make_unique<DateOffsetRange>(anchorTime, slot.element, slot.minimum,
                                                           slot.counting == RelativeDateTable::Counting::Calendar,
                                                           slot.side == RelativeDateTable::Side::AtOrBefore, this));
    }
    if (static_cast<int>(ranges.size()) < count) {
        Diagnostic::write(QtCriticalMsg, signature, "not enough ranges!");
    }
    for (const RelativeDateTable::Slot& slot : table) {
        using Elements = QList<RelativeDateElement::Type>;
        const Elements elements =
            slot.shown == RelativeDateTable::Shown::Relative ? Elements{slot.element} : Elements{};
        patterns.push_back(std::make_unique<RelativeDatePattern>(locale, clockFormat, anchorTime,
                                                                 QString::fromLatin1(slot.skeleton), elements, this));
    }
    if (static_cast<int>(patterns.size()) < count) {
        Diagnostic::write(QtCriticalMsg, signature, "not enough patterns!");
    }
}

RelativeDateFormatterPrivate::~RelativeDateFormatterPrivate() = default;

bool RelativeDateFormatterPrivate::setAnchorTime(const QDateTime& newAnchorTime)
{
    if (newAnchorTime == anchorTime) {
        return false;
    }
    ++changes;
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
    ++changes;
    locale = newLocale;
    for (const auto& pattern : patterns) {
        pattern->setLocale(locale);
    }
    return true;
}

bool RelativeDateFormatterPrivate::setWording(RelativeDateWording::Type newWording)
{
    if (newWording == wording) {
        return false;
    }
    ++changes;
    wording = newWording;
    return true;
}

bool RelativeDateFormatterPrivate::setClockFormat(ClockFormat::Type newClockFormat)
{
    if (newClockFormat == clockFormat) {
        return false;
    }
    const Use use(uses);
    ++changes;
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
    constexpr const char* signature =
        "QString zel::utility::i18n::RelativeDateFormatterPrivate::format(const QDateTime&) const";
    const Use use(uses);
    if (count == 0) {
        Diagnostic::write(QtWarningMsg, signature, "cannot use malconstructed RelativeDateFormatterPrivate");
        return {};
    }
    if (wording == RelativeDateWording::Natural) {
        const std::optional<QString> text = naturalText(dateTime);
        if (text) {
            return *text;
        }
    }
    // Day offsets compare days of the year: last November would count as later than this May.
    const bool later = DateTime::wallClock(dateTime) > DateTime::wallClock(anchorTime);
    for (std::size_t slot = 0; slot < ranges.size(); ++slot) {
        if (table.at(static_cast<int>(slot)).side == RelativeDateTable::Side::After && !later) {
            continue;
        }
        if (ranges[slot]->contains(dateTime)) {
            return patterns[slot]->format(dateTime);
        }
    }
    Diagnostic::write(QtCriticalMsg, signature, "cannot find appropriate date range for given date-time:", dateTime);
    return {};
}

std::optional<QString> RelativeDateFormatterPrivate::naturalText(const QDateTime& dateTime) const
{
    const RelativeDistance distance(RelativeDistance::reading(anchorTime), RelativeDistance::reading(dateTime));
    const RelativeDateTable::Step step = table.stepOf(distance, wording);
    if (RelativeDateTable::isNear(distance.days())) {
        return patterns[static_cast<std::size_t>(step.slot)]->format(dateTime, step.count);
    }
    if (table.isNow(step, wording)) {
        const QString now = NowWord::of(locale);
        return now.isEmpty() ? std::nullopt : std::make_optional(now);
    }
    return std::nullopt;
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
    const QPointer<RelativeDateFormatter> alive(this);
    Q_EMIT changed();
    if (alive) {
        d->keepWhileInUse(std::move(previous));
    }
}

void RelativeDateFormatter::setLocale(const QLocale& locale)
{
    if (d->setLocale(locale)) {
        Q_EMIT changed();
    }
}

QLocale RelativeDateFormatter::locale() const
{
    return d->locale;
}

QDateTime RelativeDateFormatter::anchorTime() const
{
    return d->anchorTime;
}

ClockFormat::Type RelativeDateFormatter::clockFormat() const
{
    return d->clockFormat;
}

RelativeDateWording::Type RelativeDateFormatter::wording() const
{
    return d->wording;
}

void RelativeDateFormatter::setWording(RelativeDateWording::Type wording)
{
    if (d->setWording(wording)) {
        Q_EMIT changed();
    }
}

QString RelativeDateFormatter::format(const QDateTime& dateTime) const
{
    return d->format(dateTime);
}

QStringList RelativeDateFormatter::formatAll(const QList<QDateTime>& dateTimes) const
{
    if (dateTimes.size() == 1) {
        return {format(dateTimes.first())}; // nothing to share
    }
    QStringList texts;
    texts.reserve(dateTimes.size());
    std::optional<RelativeDateBatch> batch;
    const RelativeDateFormatterPrivate* prepared = nullptr;
    unsigned int changes = 0;
    for (const QDateTime& dateTime : dateTimes) {
        // A message handler that format() called may have changed the formatter.
        if (prepared != d.get() || changes != d->changes) {
            prepared = d.get();
            changes = d->changes;
            batch.emplace(*d);
        }
        const std::optional<QString> text = batch->format(dateTime);
        texts.append(text ? *text : format(dateTime));
    }
    return texts;
}

QDateTime RelativeDateFormatter::validUntil(const QDateTime& dateTime) const
{
    return RelativeDateValidity(d->table, d->wording).until(d->anchorTime, dateTime);
}

// NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks): the formatter is their parent
bool RelativeDateFormatter::connectToSettings(QObject* receiver, const char* member)
{
    auto clock = std::make_unique<ClockSetting>(nullptr);
    auto timeZone = std::make_unique<TimeZoneSetting>(nullptr);
    if (!connect(clock.get(), SIGNAL(changed()), receiver, member) ||
        !connect(timeZone.get(), SIGNAL(changed()), receiver, member)) {
        return false;
    }
    clock.release()->setParent(this);
    timeZone.release()->setParent(this);
    new RegionNotifier(receiver, member, this);
    return true;
}
// NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)

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
