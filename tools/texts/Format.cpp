// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "texts/Format.h"

#include <array>
#include <memory>
#include <QtCore/QStringList>
#include <unicode/smpdtfmt.h>
#include <zel/icu/QtField.h>
#include <zel/icu/QtLocale.h>
#include <zel/utility/i18n/Formatting.h>

namespace zel::tool {

namespace {

namespace DateFormat = zel::utility::i18n::DateFormat;

constexpr std::array lengths = {DateFormat::Short, DateFormat::Medium, DateFormat::Long, DateFormat::Full};

icu::DateFormat::EStyle styleOf(Format::Length length)
{
    switch (length) {
    case DateFormat::Short:
        return icu::DateFormat::kShort;
    case DateFormat::Medium:
        return icu::DateFormat::kMedium;
    case DateFormat::Long:
        return icu::DateFormat::kLong;
    case DateFormat::Full:
        break;
    }
    return icu::DateFormat::kFull;
}

bool hasFieldThatQtLacks(const QString& pattern)
{
    return !pattern.isEmpty() && zel::icudata::QtField::translate(pattern).isNull();
}

} // namespace

QList<Format> Format::all()
{
    QList<Format> all;
    for (const Kind kind : {Date, Time, DateTime}) {
        for (const Length length : lengths) {
            all.append(Format(kind, length));
        }
    }
    return all;
}

QString Format::kind() const
{
    return QStringList({QStringLiteral("date"), QStringLiteral("time"), QStringLiteral("date-time")}).at(m_kind);
}

QString Format::length() const
{
    return QStringList(
               {QStringLiteral("short"), QStringLiteral("medium"), QStringLiteral("long"), QStringLiteral("full")})
        .at(m_length - DateFormat::Short);
}

QString Format::pattern(const QLocale& locale) const
{
    namespace i18n = zel::utility::i18n;
    switch (m_kind) {
    case Date:
        return i18n::dateFormat(locale, m_length);
    case Time:
        return i18n::timeFormat(locale, m_length);
    case DateTime:
        break;
    }
    return i18n::dateTimeFormat(locale, m_length);
}

bool Format::isFallback(const QLocale& locale, const QString& pattern) const
{
    return hasFieldThatQtLacks(patternOfIcu(locale)) && pattern == patternOfQt(locale);
}

QString Format::patternOfIcu(const QLocale& locale) const
{
    icu::ErrorCode status;
    const icu::Locale icuLocale = zel::icudata::QtLocale::toGregorianICU(locale, status);
    const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createDateTimeInstance(
        m_kind == Time ? icu::DateFormat::kNone : styleOf(m_length),
        m_kind == Date ? icu::DateFormat::kNone : styleOf(m_length), icuLocale));
    const auto* const simple = dynamic_cast<const icu::SimpleDateFormat*>(format.get());
    icu::UnicodeString pattern;
    if (simple != nullptr) {
        simple->toPattern(pattern);
    }
    return QString(reinterpret_cast<const QChar*>(pattern.getBuffer()), pattern.length());
}

QString Format::patternOfQt(const QLocale& locale) const
{
    const auto type = m_length <= DateFormat::Medium ? QLocale::ShortFormat : QLocale::LongFormat;
    switch (m_kind) {
    case Date:
        return locale.dateFormat(type);
    case Time:
        return locale.timeFormat(type);
    case DateTime:
        break;
    }
    return locale.dateTimeFormat(type);
}

} // namespace zel::tool
