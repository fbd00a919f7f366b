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

/** Whether ICU makes the calendars and formats that format() needs for every text, and the batch for some. */
bool isUsable(const RelativeDateFormatterPrivate& formatter)
{
    const DiagnosticSilence silence;
    RelativeDate::offset(formatter.anchorTime, formatter.anchorTime, RelativeDateElement::Years);
    RelativeDate::difference(formatter.anchorTime, formatter.anchorTime, RelativeDateElement::Minutes, true);
    DatePattern::formatFromPattern(QStringLiteral("y"), formatter.anchorTime, formatter.locale);
    return !silence.isBroken();
}

} // namespace

RelativeDateBatch::RelativeDateBatch(const RelativeDateFormatterPrivate& formatter)
    : m_formatter(formatter),
      m_anchor(RelativeDistance::reading(formatter.anchorTime)),
      m_usable(formatter.count > 0 && RelativeDistance::covers(m_anchor) && isUsable(formatter))
{
}

RelativeDateBatch::~RelativeDateBatch() = default;

std::optional<QString> RelativeDateBatch::format(const QDateTime& dateTime)
{
    const qint64 reading = RelativeDistance::reading(dateTime);
    if (!m_usable || !RelativeDistance::covers(reading)) {
        return std::nullopt;
    }
    const Step step = m_formatter.table.stepOf(RelativeDistance(m_anchor, reading), m_formatter.wording);
    if (patternOf(step).isPhraseAlone()) {
        const QString& text = phrase(step);
        return text.isEmpty() ? std::nullopt : std::make_optional(text);
    }
    return dated(step, reading);
}

const QString& RelativeDateBatch::phrase(const Step& step)
{
    const std::pair key(step.slot, step.count);
    const auto known = m_phrases.find(key);
    return known != m_phrases.end() ? known->second : m_phrases.emplace(key, makePhrase(step)).first->second;
}

QString RelativeDateBatch::makePhrase(const Step& step)
{
    const DiagnosticSilence silence;
    const RelativeDateElement::Type element = m_formatter.table.at(step.slot).element;
    if (m_formatter.wording == RelativeDateWording::Natural && element == RelativeDateElement::Minutes &&
        step.count == 0) {
        const QString now = NowWord::of(m_formatter.locale);
        if (silence.isBroken() || !now.isEmpty()) {
            return silence.isBroken() ? QString() : now;
        }
    }
    std::unique_ptr<ResourceFormatter>& resource = m_resources[step.slot];
    if (!resource) {
        resource = std::make_unique<ResourceFormatter>(m_formatter.locale, element, nullptr);
    }
    const QString text = resource->isValid() ? resource->format(step.count) : QString();
    return silence.isBroken() ? QString() : text;
}

std::optional<QString> RelativeDateBatch::dated(const Step& step, qint64 reading)
{
    const std::pair key(step.slot, step.count);
    auto known = m_formats.find(key);
    if (known == m_formats.end()) {
        known = m_formats.emplace(key, makeFormat(step)).first;
    }
    if (!known->second) {
        return std::nullopt;
    }
    icu::ErrorCode status;
    icu::UnicodeString text;
    known->second->format(icu::Formattable(static_cast<UDate>(reading)), text, status);
    const bool formatted = status.isSuccess();
    status.reset();
    return formatted ? std::make_optional(String::toQt(text)) : std::nullopt;
}

std::unique_ptr<icu::SimpleDateFormat> RelativeDateBatch::makeFormat(const Step& step) const
{
    const DiagnosticSilence silence;
    const QString pattern = patternOf(step).patternFor(step.count);
    icu::ErrorCode status;
    auto format =
        std::make_unique<icu::SimpleDateFormat>(String::toICU(pattern), Locale::toICU(m_formatter.locale), status);
    const bool usable = status.isSuccess() && !silence.isBroken();
    status.reset();
    if (!usable) {
        return nullptr;
    }
    format->adoptTimeZone(icu::TimeZone::getGMT()->clone());
    return format;
}

const RelativeDatePattern& RelativeDateBatch::patternOf(const Step& step) const
{
    return *m_formatter.patterns[static_cast<std::size_t>(step.slot)];
}

} // namespace zel::utility::i18n
