// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "CustomDateSource.h"

namespace zel::utility::i18n::qml {

// Where ICU knows no letter of the skeleton, its pattern is empty.
CustomDateSource::CustomDateSource(const QString& skeleton)
    : m_formatter(skeleton),
      m_isValid(m_formatter.isValid() && !m_formatter.format(QDateTime::currentDateTimeUtc()).isEmpty())
{
}

QList<DatedText> CustomDateSource::texts(const QList<QDateTime>& moments, const QDateTime& /*anchor*/)
{
    QList<DatedText> result;
    result.reserve(moments.size());
    if (isValid()) {
        for (const QString& text : m_formatter.formatAll(moments)) {
            result.append({text});
        }
    } else {
        result.resize(moments.size());
    }
    return result;
}

} // namespace zel::utility::i18n::qml
