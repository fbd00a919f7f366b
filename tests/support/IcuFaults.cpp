// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "support/IcuFaults.h"

#include <unicode/calendar.h>
#include <unicode/datefmt.h>
#include <unicode/dtptngen.h>
#include <unicode/fmtable.h>
#include <unicode/numfmt.h>
#include <unicode/plurrule.h>
#include <unicode/resbund.h>
#include <unicode/simpletz.h>
#include <unicode/timezone.h>

#define ZEL_TEXT(x) #x
#define ZEL_EXPANDED_TEXT(x) ZEL_TEXT(x)
#define ZEL_SYMBOL(prefix, name) prefix "6icu_" ZEL_EXPANDED_TEXT(U_ICU_VERSION_MAJOR_NUM) name

// Declares the real function and its replacement under the names that the linker's --wrap gives them. Members take the
// object as their first parameter, as the C++ ABI passes it. The replacement is visible because shared libraries name
// some of these functions, too.
#define ZEL_DECLARE(function, result, prefix, name, ...)                                                               \
    result real##function(__VA_ARGS__) asm("__real_" ZEL_SYMBOL(prefix, name));                                        \
    __attribute__((visibility("default"))) result wrap##function(__VA_ARGS__) asm("__wrap_" ZEL_SYMBOL(prefix, name)); \
    result wrap##function(__VA_ARGS__)

#define ZEL_CALL(function, fault, result, ...)                                                                         \
    return IcuFaults::call(IcuFaults::fault, error,                                                                    \
                           [&](UErrorCode& status) -> result { return real##function(__VA_ARGS__, status); })

namespace {

// A zone that cannot be cloned.
class UniqueZone : public icu::SimpleTimeZone
{
public:
    UniqueZone() : SimpleTimeZone(0, "unique") {}
    SimpleTimeZone* clone() const override { return nullptr; }
};

} // namespace

#if U_ICU_VERSION_MAJOR_NUM < 76
using KeywordText = const char*;
#define ZEL_SET_KEYWORD "6Locale15setKeywordValueEPKcS2_R10UErrorCode"
#else
using KeywordText = icu::StringPiece;
#define ZEL_SET_KEYWORD "6Locale15setKeywordValueENS_11StringPieceES1_R10UErrorCode"
#endif

ZEL_DECLARE(Keyword, void, "_ZN", ZEL_SET_KEYWORD, icu::Locale* self, KeywordText keyword, KeywordText value,
            UErrorCode& error)
{
    ZEL_CALL(Keyword, SetKeywordValue, void, self, keyword, value);
}

ZEL_DECLARE(DateTime, icu::DateFormat*, "_ZN", "10DateFormat22createDateTimeInstanceENS0_6EStyleES1_RKNS_6LocaleE",
            icu::DateFormat::EStyle date, icu::DateFormat::EStyle time, const icu::Locale& locale)
{
    return IcuFaults::next(IcuFaults::CreateDateTimeInstance) == IcuFaults::Works ? realDateTime(date, time, locale)
                                                                                  : nullptr;
}

ZEL_DECLARE(Percent, icu::NumberFormat*, "_ZN", "12NumberFormat21createPercentInstanceERKNS_6LocaleER10UErrorCode",
            const icu::Locale& locale, UErrorCode& error)
{
    ZEL_CALL(Percent, CreatePercentInstance, icu::NumberFormat*, locale);
}

ZEL_DECLARE(Generator, icu::DateTimePatternGenerator*, "_ZN",
            "24DateTimePatternGenerator14createInstanceERKNS_6LocaleER10UErrorCode", const icu::Locale& locale,
            UErrorCode& error)
{
    ZEL_CALL(Generator, CreateGenerator, icu::DateTimePatternGenerator*, locale);
}

ZEL_DECLARE(Pattern, icu::UnicodeString, "_ZN",
            "24DateTimePatternGenerator14getBestPatternERKNS_13UnicodeStringER10UErrorCode",
            icu::DateTimePatternGenerator* self, const icu::UnicodeString& skeleton, UErrorCode& error)
{
    ZEL_CALL(Pattern, GetBestPattern, icu::UnicodeString, self, skeleton);
}

ZEL_DECLARE(DateFormat, void, "_ZN", "16SimpleDateFormatC1ERKNS_13UnicodeStringERKNS_6LocaleER10UErrorCode", void* self,
            const icu::UnicodeString& pattern, const icu::Locale& locale, UErrorCode& error)
{
    ZEL_CALL(DateFormat, CreateDateFormat, void, self, pattern, locale);
}

ZEL_DECLARE(Format, icu::UnicodeString&, "_ZNK", "6Format6formatERKNS_11FormattableERNS_13UnicodeStringER10UErrorCode",
            const icu::Format* self, const icu::Formattable& date, icu::UnicodeString& text, UErrorCode& error)
{
    return *IcuFaults::call(IcuFaults::FormatDate, error,
                            [&](UErrorCode& status) { return &realFormat(self, date, text, status); });
}

ZEL_DECLARE(Bundle, void, "_ZN", "14ResourceBundleC1EPKcRKNS_6LocaleER10UErrorCode", void* self, const char* package,
            const icu::Locale& locale, UErrorCode& error)
{
    ZEL_CALL(Bundle, OpenBundle, void, self, package, locale);
}

ZEL_DECLARE(Resource, icu::ResourceBundle, "_ZNK", "14ResourceBundle3getEPKcR10UErrorCode",
            const icu::ResourceBundle* self, const char* key, UErrorCode& error)
{
    ZEL_CALL(Resource, GetResource, icu::ResourceBundle, self, key);
}

ZEL_DECLARE(String, icu::UnicodeString, "_ZNK", "14ResourceBundle11getStringExEPKcR10UErrorCode",
            const icu::ResourceBundle* self, const char* key, UErrorCode& error)
{
    ZEL_CALL(String, GetString, icu::UnicodeString, self, key);
}

ZEL_DECLARE(Rules, icu::PluralRules*, "_ZN", "11PluralRules9forLocaleERKNS_6LocaleER10UErrorCode",
            const icu::Locale& locale, UErrorCode& error)
{
    ZEL_CALL(Rules, ForLocale, icu::PluralRules*, locale);
}

ZEL_DECLARE(Number, icu::NumberFormat*, "_ZN", "12NumberFormat14createInstanceERKNS_6LocaleER10UErrorCode",
            const icu::Locale& locale, UErrorCode& error)
{
    ZEL_CALL(Number, CreateNumberFormat, icu::NumberFormat*, locale);
}

ZEL_DECLARE(GMT, const icu::TimeZone*, "_ZN", "8TimeZone6getGMTEv", )
{
    static const UniqueZone uniqueZone;
    switch (IcuFaults::next(IcuFaults::GetGMT)) {
    case IcuFaults::Works:
        return realGMT();
    case IcuFaults::ReturnsNull:
        return nullptr;
    default:
        return &uniqueZone;
    }
}

ZEL_DECLARE(SharedZone, icu::Calendar*, "_ZN", "8Calendar14createInstanceERKNS_8TimeZoneERKNS_6LocaleER10UErrorCode",
            const icu::TimeZone& zone, const icu::Locale& locale, UErrorCode& error)
{
    ZEL_CALL(SharedZone, CreateCalendar, icu::Calendar*, zone, locale);
}

ZEL_DECLARE(OwnZone, icu::Calendar*, "_ZN", "8Calendar14createInstanceEPNS_8TimeZoneERKNS_6LocaleER10UErrorCode",
            icu::TimeZone* zone, const icu::Locale& locale, UErrorCode& error)
{
    ZEL_CALL(OwnZone, CreateCalendar, icu::Calendar*, zone, locale);
}

ZEL_DECLARE(Time, void, "_ZN", "8Calendar15setTimeInMillisEdR10UErrorCode", icu::Calendar* self, UDate time,
            UErrorCode& error)
{
    ZEL_CALL(Time, SetTime, void, self, time);
}
