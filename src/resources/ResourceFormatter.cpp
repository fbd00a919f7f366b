// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "resources/ResourceFormatter.h"

#include "bridge/Diagnostic.h"
#include "relative/RelativeDate.h"
#include "resources/NumericResourceAccessor.h"
#include "resources/PluralResourceAccessor.h"

namespace zel::utility::i18n {

ResourceFormatter::ResourceFormatter(const QLocale& locale, RelativeDateElement::Type type, QObject* parent)
    : QObject(parent),
      m_numeric(!RelativeDate::resourceIsPlural(type))
{
    if (m_numeric) {
        m_accessor = new NumericResourceAccessor(locale, RelativeDate::resourcePath(type, true), this);
    } else {
        m_accessor = new PluralResourceAccessor(locale, RelativeDate::resourcePath(type, true), this);
        m_futureAccessor = new PluralResourceAccessor(locale, RelativeDate::resourcePath(type, false), this);
    }
}

bool ResourceFormatter::isValid() const
{
    return (m_numeric || m_futureAccessor->isValid()) && m_accessor->isValid();
}

QString ResourceFormatter::format(int count) const
{
    if (!isValid()) {
        Diagnostic::write(QtCriticalMsg, "QString zel::utility::i18n::ResourceFormatter::format(int) const",
                          "called on an invalid formatter");
        return {};
    }
    if (m_numeric) {
        return m_accessor->format(count);
    }
    return count < 0 ? m_accessor->format(-count) : m_futureAccessor->format(count);
}

} // namespace zel::utility::i18n
