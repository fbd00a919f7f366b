// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_PATTERNS_FORMATTINGPRIVATE_H
#define ZEL_UTILITY_I18N_PATTERNS_FORMATTINGPRIVATE_H

#include <QtCore/QString>

namespace zel::utility::i18n {

/**
 * Translates an ICU pattern to Qt syntax.
 *
 * @return a null string for an empty pattern and for one with a field that Qt lacks
 *
 * @code
 * getQtDateTimePatternFromICU("EEEE, d MMMM y"); // "dddd, d MMMM yyyy"
 * @endcode
 */
QString getQtDateTimePatternFromICU(const QString& icuPattern);

} // namespace zel::utility::i18n

#endif
