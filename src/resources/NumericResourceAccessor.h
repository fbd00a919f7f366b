// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_RESOURCES_NUMERICRESOURCEACCESSOR_H
#define ZEL_UTILITY_I18N_RESOURCES_NUMERICRESOURCEACCESSOR_H

#include "resources/ResourceAccessor.h"
#include <QtCore/QLocale>
#include <QtCore/QMap>

namespace zel::utility::i18n {

/**
 * Fixed phrases for the counts -1, 0 and 1, such as the days around today.
 *
 * They come from the first locale with a table of all three, from the requested locale upwards.
 */
class NumericResourceAccessor : public ResourceAccessor
{
    Q_OBJECT

public:
    NumericResourceAccessor(const QLocale& locale, const QStringList& keys, QObject* parent);

    bool isValid() const override;
    QString format(int count) const override;

private:
    bool cacheResource(const icu::ResourceBundle& table);

    bool m_valid = false;
    QMap<int, QString> m_cache;
};

} // namespace zel::utility::i18n

#endif
