// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_BRIDGE_PATTERNTEXT_H
#define ZEL_UTILITY_I18N_BRIDGE_PATTERNTEXT_H

#include <QtCore/QString>
#include <vector>

namespace zel::utility::i18n {

/**
 * A date/time pattern, in ICU's or Qt's syntax, with its literal text between apostrophes.
 *
 * @code
 * const PatternText pattern("HH 'h' mm");
 * pattern.isQuoted(4);                    // true
 * pattern.lastIndexOf(QStringLiteral("h")); // -1
 * @endcode
 */
class PatternText
{
public:
    explicit PatternText(const QString& pattern);

    const QString& text() const { return m_text; }

    /** Whether a character is quoted; a closing apostrophe is, an opening one is not. */
    bool isQuoted(int position) const { return !m_quoted.empty() && m_quoted[static_cast<std::size_t>(position)]; }

    /** Whether a character is the letter of a field. */
    bool isField(int position) const;

    /** The letters of all fields in order, without literal text. */
    QString fields() const;

    /** The first position of a character at or after `from`, outside quotes, or -1. */
    int indexOf(QChar character, int from, Qt::CaseSensitivity cs) const;

    /** The position after the quoted text that opens at a position; the position itself if none does. */
    int endOfQuoted(int position) const;

    /** The last position of a text that does not start inside quotes, or -1. */
    int lastIndexOf(const QString& text) const;

private:
    QString m_text;
    std::vector<bool> m_quoted; // empty if nothing is quoted
};

} // namespace zel::utility::i18n

#endif
