// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "resources/ResourceAccessor.h"

#include "bridge/Diagnostic.h"
#include "bridge/IcuCall.h"
#include <unicode/errorcode.h>
#include <zel/icu/DataDirectory.h>

namespace zel::utility::i18n {

ResourceAccessor::ResourceAccessor(QObject* parent) : QObject(parent) {}

bool ResourceAccessor::isValid() const
{
    return false;
}

icu::ResourceBundle* ResourceAccessor::initResource(const icu::Locale& locale, const QStringList& keys)
{
    constexpr const char* signature =
        "static icu::ResourceBundle* zel::utility::i18n::ResourceAccessor::initResource(const "
        "icu::Locale&, const QStringList&)";
    icu::ErrorCode status;
    icu::ResourceBundle current(zel::icudata::phrasePackage(), locale, status);
    if (status.isFailure()) {
        Diagnostic::write(QtCriticalMsg, signature,
                          "icu::ResourceBundle::ResourceBundle( const char *, const icu::Locale &, UErrorCode & )");
        Diagnostic::write(QtCriticalMsg, signature, "failed to open resource bundle for locale", locale.getName());
        return nullptr;
    }
    for (const QString& key : keys) {
        current = current.get(key.toUtf8().constData(), status);
        if (status.get() == U_MISSING_RESOURCE_ERROR) {
            return nullptr;
        }
        if (status.isFailure()) {
            IcuCall{"icu::ResourceBundle::get( const char *, UErrorCode & )", IcuCall::Spaced}.report(
                status, signature, "failed to access resource key", key, "in locale", locale.getName());
            return nullptr;
        }
    }
    return current.clone();
}

} // namespace zel::utility::i18n
