// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "patterns/DatePattern.h"

#include "bridge/DateTime.h"
#include "bridge/IcuCall.h"
#include "bridge/Locale.h"
#include "bridge/String.h"
#include <memory>
#include <unicode/dtptngen.h>
#include <unicode/errorcode.h>
#include <unicode/fmtable.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

namespace zel::utility::i18n {

namespace {

constexpr const char* patternSignature =
    "static QString zel::utility::i18n::DatePattern::patternFromSkeleton(const QString&, const QLocale&)";

std::unique_ptr<icu::DateTimePatternGenerator> createGenerator(const icu::Locale& locale)
{
    icu::ErrorCode status;
    std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(locale, status));
    if (status.isFailure() || !generator) {
        constexpr IcuCall call = {"icu::DateTimePatternGenerator::createInstance( const icu::Locale &, UErrorCode & )",
                                  IcuCall::Joined, QtWarningMsg, QtDebugMsg};
        call.report(status, patternSignature, "could not instantiate icu::DateTimePatternGenerator");
        return nullptr;
    }
    return generator;
}

} // namespace

QString DatePattern::patternFromSkeleton(const QString& skeleton, const QLocale& locale)
{
    const auto generator = createGenerator(Locale::toICU(locale));
    if (!generator) {
        return {};
    }
    icu::ErrorCode status;
    const icu::UnicodeString pattern = generator->getBestPattern(String::toICU(skeleton), status);
    if (status.isFailure()) {
        constexpr IcuCall call = {
            "icu::DateTimePatternGenerator::getBestPattern( const icu::UnicodeString &, UErrorCode & )",
            IcuCall::Joined, QtWarningMsg, QtDebugMsg};
        call.report(status, patternSignature, "could not parse the skeleton");
        return {};
    }
    return String::toQt(pattern);
}

QString DatePattern::formatFromPattern(const QString& pattern, const QDateTime& dateTime, const QLocale& locale)
{
    constexpr const char* signature = "static QString zel::utility::i18n::DatePattern::formatFromPattern(const "
                                      "QString&, const QDateTime&, const QLocale&)";
    icu::ErrorCode status;
    icu::SimpleDateFormat format(String::toICU(pattern), Locale::toICU(locale), status);
    if (status.isFailure()) {
        constexpr IcuCall call = {"icu::SimpleDateFormat::SimpleDateFormat( const icu::UnicodeString &, const "
                                  "icu::Locale &, UErrorCode & )"};
        call.report(status, signature, "could not instantiate date formatter");
        return {};
    }
    format.adoptTimeZone(icu::TimeZone::getGMT()->clone());
    icu::UnicodeString text;
    format.format(icu::Formattable(DateTime::wallClock(dateTime)), text, status);
    if (status.isFailure()) {
        constexpr IcuCall call = {"icu::SimpleDateFormat::format( UDate, icu::UnicodeString &, UErrorCode & )"};
        call.report(status, signature, "failed to format date/time");
        return {};
    }
    return String::toQt(text);
}

} // namespace zel::utility::i18n
