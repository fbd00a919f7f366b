// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_BRIDGE_STRING_H
#define ZEL_UTILITY_I18N_BRIDGE_STRING_H

#include <QtCore/QString>
#include <unicode/unistr.h>

namespace zel::utility::i18n {

/** Converts text between Qt and ICU, and searches patterns. All functions are reentrant. */
class String
{
public:
    String() = delete;

    /** The same UTF-16 code units; a null string for a bogus text. */
    static QString toQt(const icu::UnicodeString& text);

    /** The same UTF-16 code units; an empty text, never a bogus one, for a null string. */
    static icu::UnicodeString toICU(const QString& text);

    /**
     * The first position of a character at or after `from`, outside the quoted text of a date/time pattern, or -1.
     *
     * @code
     * String::indexOfInFormat("h 'h' h", 'h', 1, Qt::CaseSensitive); // 6
     * @endcode
     */
    static int indexOfInFormat(const QString& format, const QChar& character, int from, Qt::CaseSensitivity cs);
};

} // namespace zel::utility::i18n

#endif
