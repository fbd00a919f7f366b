// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_GLOBAL_H
#define ZEL_UTILITY_I18N_GLOBAL_H

#include <QtCore/QtGlobal>

/**
 * @file
 * Macros of the public headers.
 */

/** Exports a symbol when the library is built, and imports it in applications. */
#ifdef ZEL_UTILITY_I18N_BUILD
#define ZEL_UTILITY_I18N_EXPORT Q_DECL_EXPORT
#else
#define ZEL_UTILITY_I18N_EXPORT Q_DECL_IMPORT
#endif

/**
 * Marks a declaration that the next major version removes; the text names its replacement. Define
 * `ZEL_UTILITY_I18N_NO_DEPRECATED_WARNINGS` to disable these warnings.
 */
#ifdef ZEL_UTILITY_I18N_NO_DEPRECATED_WARNINGS
#define ZEL_UTILITY_I18N_DEPRECATED(replacement)
#else
#define ZEL_UTILITY_I18N_DEPRECATED(replacement) [[deprecated(replacement)]]
#endif

/**
 * Begins a section of signals, each marked with `Q_SIGNAL`. Signals are protected in the meta-object, because only
 * their owner emits them, and public in C++, so that a type-safe `QObject::connect` can name them.
 */
#ifdef Q_MOC_RUN
#define ZEL_UTILITY_I18N_SIGNALS protected:
#else
#define ZEL_UTILITY_I18N_SIGNALS public:
#endif

#endif
