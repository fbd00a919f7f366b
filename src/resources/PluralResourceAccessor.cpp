// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "resources/PluralResourceAccessor.h"

#include "bridge/Diagnostic.h"
#include "bridge/IcuCall.h"
#include "bridge/Locale.h"
#include "bridge/String.h"
#include <string>
#include <unicode/errorcode.h>
#include <unicode/unistr.h>

namespace zel::utility::i18n {

namespace {

const icu::UnicodeString replacePattern(u"{0}");

constexpr const char* pluralConstructor = "zel::utility::i18n::PluralResourceAccessor::PluralResourceAccessor(const "
                                          "QLocale&, const QStringList&, QObject*)";
constexpr const char* pluralFormat = "virtual QString zel::utility::i18n::PluralResourceAccessor::format(int) const";

// Adopts the result of an ICU factory, reports a failure, and resets the status for the next factory.
template <typename T>
std::unique_ptr<T> adopt(T* created, icu::ErrorCode& status, const char* factory, const char* consequence)
{
    std::unique_ptr<T> object(created);
    if (status.isSuccess() && object) {
        return object;
    }
    const QtMsgType severity = status.isFailure() ? QtCriticalMsg : QtWarningMsg;
    IcuCall{factory, IcuCall::Spaced, severity, severity}.report(status, pluralConstructor, consequence);
    status.reset();
    return nullptr;
}

std::string toUtf8(const icu::UnicodeString& text)
{
    std::string utf8;
    return text.toUTF8String(utf8);
}

// Whether a look-up succeeded; otherwise reports the error and the items that follow.
template <typename... Items>
bool succeeded(UErrorCode status, const Items&... items)
{
    if (U_SUCCESS(status)) {
        return true;
    }
    IcuCall{"icu::ResourceBundle::getStringEx( const char *, UErrorCode & )"}.report(status, pluralFormat, items...);
    return false;
}

} // namespace

PluralResourceAccessor::PluralResourceAccessor(const QLocale& locale, const QStringList& keys, QObject* parent)
    : ResourceAccessor(parent)
{
    const icu::Locale requested = Locale::toICU(locale);
    initRules(requested);
    initTable(locale, requested, keys);
}

void PluralResourceAccessor::initRules(const icu::Locale& locale)
{
    constexpr const char* forLocale = "icu::PluralRules::forLocale( const icu::Locale &, UErrorCode & )";
    constexpr const char* createInstance = "icu::NumberFormat::createInstance( const icu::Locale &, UErrorCode & )";
    icu::ErrorCode status;
    m_pluralRules =
        adopt(icu::PluralRules::forLocale(locale, status), status, forLocale, "failed to instantiate plural rules");
    m_rootNumberFormat = adopt(icu::NumberFormat::createInstance(icu::Locale::getRoot(), status), status,
                               createInstance, "failed to instantiate root number formatting");
    m_numberFormat = adopt(icu::NumberFormat::createInstance(locale, status), status, createInstance,
                           "failed to instantiate number formatting");
}

void PluralResourceAccessor::initTable(const QLocale& locale, const icu::Locale& requested, const QStringList& keys)
{
    for (icu::Locale current = requested; !current.isBogus(); current = Locale::fallback(current)) {
        std::unique_ptr<icu::ResourceBundle> bundle(initResource(current, keys));
        if (!bundle) {
            continue;
        }
        if (bundle->getType() == URES_TABLE) {
            m_resource = std::move(bundle);
        } else {
            Diagnostic::write(QtCriticalMsg, pluralConstructor, "did not reach a resource table using supplied keys",
                              keys);
        }
        return;
    }
    Diagnostic::write(QtCriticalMsg, pluralConstructor, "exhausted all possible locale fallbacks for",
                      locale.bcp47Name());
    Diagnostic::write(QtCriticalMsg, pluralConstructor, "failed to open resource path:", keys);
}

bool PluralResourceAccessor::isValid() const
{
    return m_pluralRules && m_rootNumberFormat && m_numberFormat && m_resource;
}

QString PluralResourceAccessor::format(int count) const
{
    if (!isValid()) {
        Diagnostic::write(QtCriticalMsg, pluralFormat, "called on an invalid resource");
        return {};
    }
    icu::UnicodeString phrase;
    if (!findPhrase(count, phrase)) {
        return {};
    }
    icu::UnicodeString number;
    m_numberFormat->format(static_cast<int32_t>(count), number);
    return String::toQt(phrase.findAndReplace(replacePattern, number));
}

bool PluralResourceAccessor::findPhrase(int count, icu::UnicodeString& phrase) const
{
    const icu::UnicodeString keyword = m_pluralRules->select(static_cast<int32_t>(count));
    UErrorCode status = lookUp(toUtf8(keyword), phrase);
    if (status != U_MISSING_RESOURCE_ERROR) {
        return succeeded(status, "failed to access resource table", String::toQt(keyword));
    }
    icu::UnicodeString number;
    status = lookUp(toUtf8(m_rootNumberFormat->format(static_cast<int32_t>(count), number)), phrase);
    if (status != U_MISSING_RESOURCE_ERROR) {
        return succeeded(status, "failed to access fall-back resource table", String::toQt(keyword));
    }
    return succeeded(lookUp("other", phrase), "failed to access final fall-back resource table \"other\"");
}

UErrorCode PluralResourceAccessor::lookUp(const std::string& key, icu::UnicodeString& phrase) const
{
    icu::ErrorCode status;
    phrase = m_resource->getStringEx(key.c_str(), status);
    return status.get();
}

} // namespace zel::utility::i18n
