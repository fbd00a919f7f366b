// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include <zel/utility/i18n/CustomDateFormatter.h>

#include "bridge/DateTime.h"
#include "bridge/Diagnostic.h"
#include "bridge/IcuCall.h"
#include "bridge/Locale.h"
#include "bridge/String.h"
#include "formatters/CustomDateFormatter_p.h"
#include "settings/ClockSetting.h"
#include "settings/TimeZoneSetting.h"
#include <QtCore/QLatin1Char>
#include <unicode/dtptngen.h>
#include <unicode/errorcode.h>
#include <unicode/fmtable.h>
#include <unicode/timezone.h>

namespace zel::utility::i18n {

namespace {

constexpr const char* formatSignature =
    "QString zel::utility::i18n::CustomDateFormatter::format(const QDateTime&) const";

// One message and one null string for each requested text.
template <typename Count>
QStringList reportInvalid(Count count)
{
    QStringList texts;
    for (; count > 0; --count) {
        Diagnostic::write(QtCriticalMsg, formatSignature, "called on invalid formatter");
        texts.append(QString());
    }
    return texts;
}

QString textOf(UDate date, const icu::SimpleDateFormat& formatter)
{
    icu::ErrorCode status;
    icu::UnicodeString text;
    formatter.format(icu::Formattable(date), text, status);
    if (status.isFailure()) {
        constexpr IcuCall call = {"icu::SimpleDateFormat::format( UDate, icu::UnicodeString &, UErrorCode & )",
                                  IcuCall::Spaced};
        call.report(status, formatSignature, "failed to format date/time");
        return {};
    }
    return String::toQt(text);
}

} // namespace

CustomDateFormatterPrivate::CustomDateFormatterPrivate(CustomDateFormatter* owner, const QString& text)
    : q(owner),
      skeleton(text),
      locale(Locale::region())
{
    updateFormatter();
}

CustomDateFormatterPrivate::~CustomDateFormatterPrivate() = default;

bool CustomDateFormatterPrivate::hasHours() const
{
    return skeleton.contains(QLatin1Char('h'), Qt::CaseInsensitive) ||
           skeleton.contains(QLatin1Char('k'), Qt::CaseInsensitive);
}

bool CustomDateFormatterPrivate::hasTimeZone() const
{
    return skeleton.contains(QLatin1Char('z'), Qt::CaseInsensitive) ||
           skeleton.contains(QLatin1Char('v'), Qt::CaseInsensitive);
}

icu::UnicodeString CustomDateFormatterPrivate::icuSkeleton() const
{
    icu::UnicodeString text = String::toICU(skeleton);
    switch (ClockSetting::clockFormat()) {
    case ClockFormat::ApplyUserFormat:
    case ClockFormat::ApplyLocaleFormat:
        return text;
    case ClockFormat::Use12hourClock:
        return text.findAndReplace(u"H", u"h");
    case ClockFormat::Use24hourClock:
        return text.findAndReplace(u"h", u"H");
    }
    Diagnostic::write(QtWarningMsg,
                      "icu::UnicodeString zel::utility::i18n::CustomDateFormatterPrivate::icuSkeleton() const",
                      "called with unknown ClockFormat::Type");
    return text;
}

void CustomDateFormatterPrivate::installClockFormatIfNeeded(bool install) const
{
    if (!install || !hasHours()) {
        clockSetting.reset();
        return;
    }
    if (clockSetting) {
        return;
    }
    auto created = std::make_unique<ClockSetting>(nullptr);
    Diagnostic::checkConnection(
        connect(created.get(), SIGNAL(changed()), this, SLOT(onClockFormatChange())),
        "void zel::utility::i18n::CustomDateFormatterPrivate::installClockFormatIfNeeded(bool) const",
        "zel::utility::i18n::ClockSetting::changed()");
    // A message handler may have set another skeleton meanwhile.
    if (!clockSetting && hasHours()) {
        clockSetting = std::move(created);
    }
}

void CustomDateFormatterPrivate::updateFormatter() const
{
    const unsigned int update = ++updates;
    auto created = createFormatter();
    // An update that a message handler started during this one is newer.
    if (created && update == updates) {
        formatter = std::move(created);
    }
}

std::unique_ptr<icu::SimpleDateFormat> CustomDateFormatterPrivate::createFormatter() const
{
    constexpr const char* signature = "void zel::utility::i18n::CustomDateFormatterPrivate::updateFormatter() const";
    const icu::Locale icuLocale = Locale::toICU(locale);
    icu::ErrorCode status;
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(icuLocale, status));
    if (status.isFailure() || !generator) {
        constexpr IcuCall call = {"icu::DateTimePatternGenerator::createInstance( const icu::Locale &, UErrorCode & )",
                                  IcuCall::Spaced};
        call.report(status, signature, "could not instantiate  the pattern generator");
        return nullptr;
    }
    // Before the clock is read, so that no change in between is missed.
    installClockFormatIfNeeded(true);
    const icu::UnicodeString pattern = generator->getBestPattern(icuSkeleton(), status);
    if (status.isFailure()) {
        constexpr IcuCall call = {
            "icu::DateTimePatternGenerator::getBestPattern( const icu::UnicodeString &, UErrorCode & )",
            IcuCall::Spaced};
        call.report(status, signature, "could not parse the skeleton");
        return nullptr;
    }
    auto created = std::make_unique<icu::SimpleDateFormat>(pattern, icuLocale, status);
    if (status.isFailure()) {
        constexpr IcuCall call = {"icu::SimpleDateFormat::SimpleDateFormat( const icu::UnicodeString &, const "
                                  "icu::Locale &, UErrorCode & )",
                                  IcuCall::Spaced};
        call.report(status, signature, "could not instantiate the date format");
        return nullptr;
    }
    return created;
}

void CustomDateFormatterPrivate::updateRegionLocale() const
{
    const QLocale region = Locale::region();
    if (region != locale) {
        locale = region;
        updateFormatter();
    }
}

bool CustomDateFormatterPrivate::adoptTimeZone(icu::SimpleDateFormat& target) const
{
    if (!hasTimeZone()) {
        target.adoptTimeZone(icu::TimeZone::getGMT()->clone());
        return false;
    }
    // Read first: a message handler that this calls may format with the same object.
    const QString timeZone = TimeZoneSetting::timeZone();
    target.adoptTimeZone(icu::TimeZone::createTimeZone(String::toICU(timeZone)));
    return true;
}

// NOLINTNEXTLINE(readability-make-member-function-const): it changes what the formatter shows
void CustomDateFormatterPrivate::onClockFormatChange()
{
    updateFormatter();
}

CustomDateFormatter::CustomDateFormatter(const QString& skeleton, QObject* parent)
    : QObject(parent),
      d(std::make_unique<CustomDateFormatterPrivate>(this, skeleton))
{
}

CustomDateFormatter::~CustomDateFormatter() = default;

bool CustomDateFormatter::isValid() const
{
    return d->formatter != nullptr;
}

QString CustomDateFormatter::skeleton() const
{
    return d->skeleton;
}

void CustomDateFormatter::setSkeleton(const QString& skeleton)
{
    if (skeleton != d->skeleton) {
        d->skeleton = skeleton;
        d->updateFormatter();
    }
}

QString CustomDateFormatter::format(const QDateTime& dateTime) const
{
    return formatAll({dateTime}).constFirst();
}

QStringList CustomDateFormatter::formatAll(const QList<QDateTime>& dateTimes) const
{
    if (!isValid()) {
        return reportInvalid(dateTimes.size());
    }
    if (dateTimes.isEmpty()) {
        return {};
    }
    d->updateRegionLocale();
    // A copy of the pointer: a message handler may set another skeleton.
    const std::shared_ptr<icu::SimpleDateFormat> formatter = d->formatter;
    const bool zoned = d->adoptTimeZone(*formatter);
    QStringList texts;
    texts.reserve(dateTimes.size());
    for (const QDateTime& dateTime : dateTimes) {
        texts.append(textOf(zoned ? DateTime::toICU(dateTime) : DateTime::wallClock(dateTime), *formatter));
    }
    return texts;
}

} // namespace zel::utility::i18n
