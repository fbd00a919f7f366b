// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_SYSTEM_LOCALENAME_H
#define ZEL_SYSTEM_LOCALENAME_H

#include <optional>
#include <QtCore/QLocale>
#include <QtCore/QString>

namespace zel::system {

/** Finds locales by their BCP 47 or POSIX names. All functions are thread-safe. */
namespace LocaleName {

/**
 * Returns exactly the named locale; "C" and "POSIX" name the C locale. Returns nothing for an unknown name, for which
 * QLocale would silently choose another locale.
 */
std::optional<QLocale> find(const QString& name);

/** Returns the locale closest to the name of a POSIX locale; the C locale if there is none. */
QLocale closest(const QString& name);

/** Returns the environment variable that names the process's POSIX locale for times; null if none does. */
const char* variable();

} // namespace LocaleName

} // namespace zel::system

#endif
