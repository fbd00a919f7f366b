// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_VERSION_H
#define ZEL_UTILITY_I18N_VERSION_H

#include <QtCore/QtGlobal>

/**
 * @file
 * The version of these headers, for the preprocessor:
 *
 * @code
 * #include <zel/utility/i18n/RelativeDateFormatter.h>
 * #include <zel/utility/i18n/Version.h>
 *
 * const zel::utility::i18n::RelativeDateFormatter formatter(zel::utility::i18n::RelativeDateFormat::TimeCritical);
 * #if ZEL_UTILITY_I18N_VERSION >= ZEL_UTILITY_I18N_VERSION_CHECK(1, 1, 0)
 * const QStringList texts = formatter.formatAll({QDateTime::currentDateTime()});
 * #endif
 * @endcode
 */

/** Major version; a new one breaks source or binary compatibility. */
#define ZEL_UTILITY_I18N_VERSION_MAJOR 1
/** Minor version; a new one extends the interface. */
#define ZEL_UTILITY_I18N_VERSION_MINOR 1
/** Patch version; a new one does not change the interface. */
#define ZEL_UTILITY_I18N_VERSION_PATCH 0

/** A version as one number; later versions have greater numbers. */
#define ZEL_UTILITY_I18N_VERSION_CHECK(major, minor, patch) QT_VERSION_CHECK(major, minor, patch)
/** The version of these headers as one number. */
#define ZEL_UTILITY_I18N_VERSION                                                                                       \
    ZEL_UTILITY_I18N_VERSION_CHECK(ZEL_UTILITY_I18N_VERSION_MAJOR, ZEL_UTILITY_I18N_VERSION_MINOR,                     \
                                   ZEL_UTILITY_I18N_VERSION_PATCH)
/** The version of these headers as a text, for example "1.1.0". */
#define ZEL_UTILITY_I18N_VERSION_STRING                                                                                \
    QT_STRINGIFY(ZEL_UTILITY_I18N_VERSION_MAJOR)                                                                       \
    "." QT_STRINGIFY(ZEL_UTILITY_I18N_VERSION_MINOR) "." QT_STRINGIFY(ZEL_UTILITY_I18N_VERSION_PATCH)

#endif
