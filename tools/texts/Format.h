// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_FORMAT_H
#define ZEL_TOOL_FORMAT_H

#include <QtCore/QList>
#include <QtCore/QLocale>
#include <QtCore/QString>
#include <zel/utility/i18n/DateFormat.h>

namespace zel::tool {

/** One of the patterns of every locale: a kind, such as "date", in a length, such as "short". */
class Format
{
public:
    using Length = zel::utility::i18n::DateFormat::Type;

    /** All of them, dates first, from short to full. */
    static QList<Format> all();

    QString kind() const;
    QString length() const;

    QString pattern(const QLocale& locale) const;

    /** Whether the pattern of the locale is QLocale's own, because ICU's has a field that Qt lacks. */
    bool isFallback(const QLocale& locale, const QString& pattern) const;

private:
    enum Kind { Date, Time, DateTime };

    Format(Kind kind, Length length) : m_kind(kind), m_length(length) {}

    QString patternOfIcu(const QLocale& locale) const;
    QString patternOfQt(const QLocale& locale) const;

    Kind m_kind;
    Length m_length;
};

} // namespace zel::tool

#endif
