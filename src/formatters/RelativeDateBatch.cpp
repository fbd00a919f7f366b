// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "formatters/RelativeDateBatch.h"

#include "bridge/DiagnosticSilence.h"
#include "bridge/Locale.h"
#include "bridge/String.h"
#include "formatters/RelativeDateFormatter_p.h"
#include "patterns/DatePattern.h"
#include "relative/RelativeDate.h"
#include "relative/RelativeDatePattern.h"
#include "resources/NowWord.h"
#include "resources/ResourceFormatter.h"
#include <unicode/errorcode.h>
#include <unicode/fmtable.h>
#include <unicode/timezone.h>

namespace zel::utility::i18n {

namespace {

// Whether ICU can create the calendars and formats that format() needs for every text, the batch only for some.
bool isUsable(const RelativeDateFormatterPrivate& formatter)
{
    const DiagnosticSilence silence;
    RelativeDate::offset(formatter.anchorTime, formatter.anchorTime, RelativeDateElement::Years);
    RelativeDate::difference(formatter.anchorTime, formatter.anchorTime, RelativeDateElement::Minutes, true);
    DatePattern::formatFromPattern(QStringLiteral("y"), formatter.anchorTime, formatter.locale);
    return !silence.hasDropped();
}

} // namespace

RelativeDateBatch::RelativeDateBatch(const RelativeDateFormatterPrivate& formatter)
    : m_formatter(formatter),
      m_anchor(RelativeDistance::reading(formatter.anchorTime)),
      m_usable(formatter.count > 0 && RelativeDistance::covers(m_anchor) && isUsable(formatter))
{
    m_caches.reserve(formatter.patterns.size());
    for (const auto& pattern : formatter.patterns) {
        m_caches.push_back({pattern.get(), pattern->isPhraseAlone(), nullptr, {}, {}});
    }
}

RelativeDateBatch::~RelativeDateBatch() = default;

std::optional<QString> RelativeDateBatch::format(const QDateTime& dateTime)
{
    const qint64 reading = RelativeDistance::reading(dateTime);
    if (!m_usable || !RelativeDistance::covers(reading)) {
        return std::nullopt;
    }
    const Step step = m_formatter.table.stepOf(RelativeDistance(m_anchor, reading), m_formatter.wording);
    if (cacheOf(step).isPhraseAlone) {
        const QString& text = phrase(step);
        return text.isEmpty() ? std::nullopt : std::make_optional(text);
    }
    return dated(step, reading);
}

const QString& RelativeDateBatch::phrase(const Step& step)
{
    auto& phrases = cacheOf(step).phrases;
    const auto known = phrases.find(step.count);
    return known != phrases.end() ? known->second : phrases.emplace(step.count, makePhrase(step)).first->second;
}

QString RelativeDateBatch::makePhrase(const Step& step)
{
    const DiagnosticSilence silence;
    if (m_formatter.table.isNow(step, m_formatter.wording)) {
        const QString now = NowWord::of(m_formatter.locale);
        if (silence.hasDropped() || !now.isEmpty()) {
            return silence.hasDropped() ? QString() : now;
        }
    }
    std::unique_ptr<ResourceFormatter>& resource = cacheOf(step).resource;
    if (!resource) {
        const RelativeDateElement::Type element = m_formatter.table.at(step.slot).element;
        resource = std::make_unique<ResourceFormatter>(m_formatter.locale, element, nullptr);
    }
    const QString text = resource->isValid() ? resource->format(step.count) : QString();
    return silence.hasDropped() ? QString() : text;
}

std::optional<QString> RelativeDateBatch::dated(const Step& step, qint64 reading)
{
    auto& formats = cacheOf(step).formats;
    auto known = formats.find(step.count);
    if (known == formats.end()) {
        known = formats.emplace(step.count, makeFormat(step)).first;
    }
    const auto& [format, calendar] = known->second;
    if (!format) {
        return std::nullopt;
    }
    icu::ErrorCode status;
    icu::UnicodeString text;
    calendar->setTime(static_cast<UDate>(reading), status);
    format->format(*calendar, text, nullptr, status);
    const bool formatted = status.isSuccess();
    status.reset();
    return formatted ? std::make_optional(String::toQt(text)) : std::nullopt;
}

RelativeDateBatch::Format RelativeDateBatch::makeFormat(const Step& step)
{
    const DiagnosticSilence silence;
    const QString pattern = cacheOf(step).pattern->patternFor(step.count);
    icu::ErrorCode status;
    auto format =
        std::make_unique<icu::SimpleDateFormat>(String::toICU(pattern), Locale::toICU(m_formatter.locale), status);
    const bool usable = status.isSuccess() && !silence.hasDropped();
    status.reset();
    if (!usable) {
        return {};
    }
    format->adoptTimeZone(icu::TimeZone::getGMT()->clone());
    std::unique_ptr<icu::Calendar> calendar(format->getCalendar()->clone());
    return {std::move(format), std::move(calendar)};
}

RelativeDateBatch::SlotCache& RelativeDateBatch::cacheOf(const Step& step)
{
    return m_caches[static_cast<std::size_t>(step.slot)];
}

} // namespace zel::utility::i18n
