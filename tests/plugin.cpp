// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// A plug-in that uses the library; tst_plugin loads it.

#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

extern "C" Q_DECL_EXPORT void relativeTexts(const QLocale& locale, QStringList& texts)
{
    const QDateTime anchor = QDateTime::fromString(QStringLiteral("2024-05-15T12:00Z"), Qt::ISODate);
    RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
    formatter.setAnchorTime(anchor);
    formatter.setLocale(locale);
    formatter.setClockFormat(ClockFormat::Use24hourClock);
    texts = QStringList{formatter.format(anchor.addSecs(-10800)), formatter.format(anchor.addDays(-1))};
}
