// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_PATTERNS_DATEPATTERN_H
#define ZEL_UTILITY_I18N_PATTERNS_DATEPATTERN_H

#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <QtCore/QString>

namespace zel::utility::i18n {

/** ICU skeletons and patterns with Qt types. Nothing is kept between calls; all functions are reentrant. */
class DatePattern
{
public:
    DatePattern() = delete;

    /** The best pattern of a locale for a skeleton, in ICU syntax; a null string, with messages, on failure. */
    static QString patternFromSkeleton(const QString& skeleton, const QLocale& locale);

    /**
     * Formats a moment with an ICU pattern; a null string, with messages, on failure. The text has the date and time
     * that the moment shows, whatever its time zone; a zone field shows GMT.
     */
    static QString formatFromPattern(const QString& pattern, const QDateTime& dateTime, const QLocale& locale);
};

} // namespace zel::utility::i18n

#endif
