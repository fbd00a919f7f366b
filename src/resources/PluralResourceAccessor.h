// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_RESOURCES_PLURALRESOURCEACCESSOR_H
#define ZEL_UTILITY_I18N_RESOURCES_PLURALRESOURCEACCESSOR_H

#include "resources/ResourceAccessor.h"
#include <memory>
#include <QtCore/QLocale>
#include <string>
#include <unicode/numfmt.h>
#include <unicode/plurrule.h>
#include <unicode/unistr.h>

namespace zel::utility::i18n {

/**
 * Counted phrases such as "{0} minutes ago", chosen by the plural category of the count.
 *
 * The table comes from the first locale that has it, from the requested locale upwards; plural rules and digits are
 * those of the requested locale. Counts are 0 or more.
 */
class PluralResourceAccessor : public ResourceAccessor
{
    Q_OBJECT

public:
    PluralResourceAccessor(const QLocale& locale, const QStringList& keys, QObject* parent);

    bool isValid() const override;
    QString format(int count) const override;

private:
    void initRules(const icu::Locale& locale);
    void initTable(const QLocale& locale, const icu::Locale& requested, const QStringList& keys);
    bool findPhrase(int count, icu::UnicodeString& phrase) const;
    UErrorCode lookUp(const std::string& key, icu::UnicodeString& phrase) const;

    std::unique_ptr<icu::PluralRules> m_pluralRules;
    std::unique_ptr<icu::NumberFormat> m_rootNumberFormat;
    std::unique_ptr<icu::NumberFormat> m_numberFormat;
    std::unique_ptr<icu::ResourceBundle> m_resource;
};

} // namespace zel::utility::i18n

#endif
