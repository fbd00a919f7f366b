// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_RESOURCES_RESOURCEACCESSOR_H
#define ZEL_UTILITY_I18N_RESOURCES_RESOURCEACCESSOR_H

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <unicode/locid.h>
#include <unicode/resbund.h>

namespace zel::utility::i18n {

/** A source of localised phrases for counts, read from ICU's resource bundles. */
class ResourceAccessor : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ResourceAccessor)

public:
    explicit ResourceAccessor(QObject* parent);
    ~ResourceAccessor() override = default;

    /** Whether there are phrases. */
    virtual bool isValid() const;

    /** The phrase for a count; a null string, with messages, if there is none. */
    virtual QString format(int count) const = 0;

    /**
     * Opens the locale's bundle and follows a path of keys, outermost first.
     *
     * @return the resource at the end of the path, owned by the caller; null if a key is missing, and, with messages,
     * if ICU fails
     */
    static icu::ResourceBundle* initResource(const icu::Locale& locale, const QStringList& keys);
};

} // namespace zel::utility::i18n

#endif
