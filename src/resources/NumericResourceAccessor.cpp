// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "resources/NumericResourceAccessor.h"

#include "bridge/Diagnostic.h"
#include "bridge/IcuCall.h"
#include "bridge/Locale.h"
#include "bridge/String.h"
#include <memory>
#include <unicode/errorcode.h>

namespace zel::utility::i18n {

NumericResourceAccessor::NumericResourceAccessor(const QLocale& locale, const QStringList& keys, QObject* parent)
    : ResourceAccessor(parent)
{
    constexpr const char* signature = "zel::utility::i18n::NumericResourceAccessor::NumericResourceAccessor("
                                      "const QLocale&, const QStringList&, QObject*)";
    std::unique_ptr<icu::ResourceBundle> bundle;
    for (icu::Locale current = Locale::toICU(locale); !current.isBogus(); current = Locale::fallback(current)) {
        bundle.reset(initResource(current, keys));
        if (!bundle) {
            continue;
        }
        if (bundle->getType() != URES_TABLE) {
            Diagnostic::write(QtCriticalMsg, signature, "did not reach a resource table using supplied keys", keys);
            return;
        }
        if (cacheResource(*bundle)) {
            m_valid = true;
            return;
        }
    }
    Diagnostic::write(QtCriticalMsg, signature, "exhausted all possible locale fallbacks for", locale.bcp47Name());
    Diagnostic::write(QtCriticalMsg, signature, "failed to open resource path:", keys);
}

bool NumericResourceAccessor::isValid() const
{
    return m_valid;
}

QString NumericResourceAccessor::format(int count) const
{
    constexpr const char* signature = "virtual QString zel::utility::i18n::NumericResourceAccessor::format(int) const";
    if (!isValid()) {
        Diagnostic::write(QtCriticalMsg, signature, "called on an invalid resource");
        return {};
    }
    if (count < -1 || count > 1) {
        Diagnostic::write(QtCriticalMsg, signature, "is unable to format this number:", count);
        return {};
    }
    return m_cache.value(count);
}

bool NumericResourceAccessor::cacheResource(const icu::ResourceBundle& table)
{
    QMap<int, QString> phrases;
    icu::ErrorCode status;
    for (const int count : {-1, 0, 1}) {
        const icu::UnicodeString phrase = table.getStringEx(QByteArray::number(count).constData(), status);
        if (status.isFailure()) {
            if (status.get() != U_MISSING_RESOURCE_ERROR) {
                IcuCall{"icu::ResourceBundle::getStringEx( const char *, UErrorCode & )", IcuCall::Spaced}.report(
                    status);
            }
            return false;
        }
        phrases.insert(count, String::toQt(phrase));
    }
    m_cache = phrases;
    return true;
}

} // namespace zel::utility::i18n
