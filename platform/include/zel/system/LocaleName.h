// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_SYSTEM_LOCALENAME_H
#define ZEL_SYSTEM_LOCALENAME_H

#include <optional>
#include <QtCore/QLocale>
#include <QtCore/QString>

namespace zel::system {

/** Locales by their BCP 47 or POSIX names. */
class LocaleName
{
public:
    LocaleName() = delete;

    /**
     * Exactly the named locale; "C" and "POSIX" name the C locale. None for an unknown name, for which QLocale would
     * silently be another locale.
     */
    static std::optional<QLocale> find(const QString& name);

    /** The locale closest to the name of a POSIX locale; the C locale at worst. */
    static QLocale closest(const QString& name);

    /** The environment variable that names the process's POSIX locale for times; null where none does. */
    static const char* variable();
};

} // namespace zel::system

#endif
