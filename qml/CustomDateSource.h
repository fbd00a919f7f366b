// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_QML_CUSTOMDATESOURCE_H
#define ZEL_QML_CUSTOMDATESOURCE_H

#include "TextSource.h"
#include <zel/utility/i18n/CustomDateFormatter.h>

namespace zel::utility::i18n::qml {

/** The texts of one skeleton. */
class CustomDateSource : public TextSource
{
public:
    explicit CustomDateSource(const QString& skeleton);

    QString key() const { return m_formatter.skeleton(); }
    bool isValid() const { return m_isValid; }

    QList<DatedText> texts(const QList<QDateTime>& moments, const QDateTime& anchor) override;

private:
    CustomDateFormatter m_formatter;
    bool m_isValid;
};

} // namespace zel::utility::i18n::qml

#endif
