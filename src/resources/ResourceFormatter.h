// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_RESOURCES_RESOURCEFORMATTER_H
#define ZEL_UTILITY_I18N_RESOURCES_RESOURCEFORMATTER_H

#include "relative/RelativeDateElement.h"
#include <QtCore/QLocale>
#include <QtCore/QObject>
#include <QtCore/QString>

namespace zel::utility::i18n {

class ResourceAccessor;

/**
 * The localised phrases of one relative-date element: "5 minutes ago", "in 2 hours", "yesterday".
 *
 * @code
 * const ResourceFormatter formatter(QLocale("en_US"), RelativeDateElement::Minutes, nullptr);
 * formatter.format(-5); // "5 minutes ago"
 * @endcode
 */
class ResourceFormatter : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ResourceFormatter)

public:
    ResourceFormatter(const QLocale& locale, RelativeDateElement::Type type, QObject* parent);
    ~ResourceFormatter() override = default;

    /** Whether the locale has phrases for both the past and the future of the element. */
    bool isValid() const;

    /** The phrase for a signed count, negative in the past; a null string, with messages, if there is none. */
    QString format(int count) const;

private:
    bool m_numeric;
    ResourceAccessor* m_accessor = nullptr;
    ResourceAccessor* m_futureAccessor = nullptr;
};

} // namespace zel::utility::i18n

#endif
