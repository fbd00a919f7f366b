// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "gallery/GalleryEntry.h"

#include "terminal/Messages.h"
#include "texts/ExampleMoments.h"
#include "texts/Format.h"
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/Formatting.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

namespace zel::tool {

namespace {

using zel::utility::i18n::CustomDateFormatter;
using zel::utility::i18n::RelativeDateFormatter;
namespace RelativeDateFormat = zel::utility::i18n::RelativeDateFormat;
namespace RelativeDateWording = zel::utility::i18n::RelativeDateWording;

// In the evening, when the clocks differ, and in UTC.
QDateTime moment()
{
    return QDateTime::fromString(QStringLiteral("2012-09-03T22:30Z"), Qt::ISODate);
}

constexpr qint64 minute = 60;

// One for each plural category of any language.
QList<ExampleMoment> minutes()
{
    QList<ExampleMoment> before;
    QList<ExampleMoment> after;
    for (const int count : {1, 2, 3, 5, 11, 21}) {
        const QString name =
            QStringLiteral("%1 %2 %3").arg(count).arg(QLatin1String(count == 1 ? "minute" : "minutes"));
        before.prepend({name.arg(QLatin1String("before")), exampleAnchor().addSecs(-minute * count)});
        after.append({name.arg(QLatin1String("after")), exampleAnchor().addSecs(minute * count)});
    }
    return before + QList<ExampleMoment>{{QStringLiteral("0 minutes"), exampleAnchor()}} + after;
}

QDateTime newYear()
{
    return {QDate(2013, 1, 1), QTime(0, 30)};
}

// Moments for which the wordings differ.
QList<ExampleMoment> aroundNewYear()
{
    return {{QStringLiteral("2 days before"), newYear().addDays(-2)},
            {QStringLiteral("31 minutes before"), newYear().addSecs(-31 * minute)},
            {QStringLiteral("0 minutes"), newYear()}};
}

// Collects rows, each with the messages that were written meanwhile.
class Rows
{
public:
    void addFormats(const QLocale& locale)
    {
        for (const Format& format : Format::all()) {
            const QString pattern = format.pattern(locale);
            const QString text = locale.toString(moment(), pattern);
            QStringList notes = m_messages.take();
            if (format.isFallback(locale, pattern)) {
                notes.prepend(QStringLiteral("Qt's own pattern: ICU's has a field that Qt lacks"));
            }
            m_rows.append({format.kind(), format.length(), {pattern, text}, notes, {}});
        }
    }

    void addCustom(const QString& skeleton)
    {
        const QString text = CustomDateFormatter(skeleton).format(moment());
        m_rows.append({QStringLiteral("custom"), skeleton, {skeleton, text}, m_messages.take(), {}});
    }

    void addPercentages(const QLocale& locale)
    {
        for (const double value : {0.256, -0.5, 12.5}) {
            const QString text = zel::utility::i18n::toPercentageString(locale, value, 1, 0);
            m_rows.append({QStringLiteral("percentage"), QString::number(value), {{}, text}, m_messages.take(), {}});
        }
    }

    void addRelative(const QString& group, const RelativeDateFormatter& formatter, const QList<ExampleMoment>& moments)
    {
        for (const ExampleMoment& example : moments) {
            const QString text = formatter.format(example.moment);
            m_rows.append({group, example.distance, {{}, text}, m_messages.take(), {}});
        }
    }

    const QList<GalleryRow>& all() const { return m_rows; }

private:
    Messages m_messages;
    QList<GalleryRow> m_rows;
};

bool looksTheSame(const GalleryRow& one, const GalleryRow& other)
{
    return one.now == other.now && one.notes == other.notes && one.before == other.before;
}

} // namespace

QList<GalleryRow> GalleryEntry::rows(const QLocale& locale)
{
    Rows rows;
    rows.addFormats(locale);
    rows.addCustom(QStringLiteral("yMMMMEEEEdhm"));
    rows.addPercentages(locale);
    const QDateTime anchor = exampleAnchor();
    RelativeDateFormatter timeCritical(RelativeDateFormat::TimeCritical);
    RelativeDateFormatter nonTimeCritical(RelativeDateFormat::NonTimeCritical);
    for (RelativeDateFormatter* const formatter : {&timeCritical, &nonTimeCritical}) {
        formatter->setLocale(locale);
        formatter->setAnchorTime(anchor);
    }
    rows.addRelative(QStringLiteral("relative, time-critical"), timeCritical,
                     exampleMoments(RelativeDateFormat::TimeCritical, anchor));
    rows.addRelative(QStringLiteral("relative, non-time-critical"), nonTimeCritical,
                     exampleMoments(RelativeDateFormat::NonTimeCritical, anchor));
    rows.addRelative(QStringLiteral("relative, minutes"), timeCritical, minutes());
    timeCritical.setAnchorTime(newYear());
    rows.addRelative(QStringLiteral("relative, on 1 January, exact wording"), timeCritical, aroundNewYear());
    timeCritical.setWording(RelativeDateWording::Natural);
    rows.addRelative(QStringLiteral("relative, on 1 January, natural wording"), timeCritical, aroundNewYear());
    return rows.all();
}

QList<int> GalleryEntry::distinctClocks(int row) const
{
    QList<int> distinct;
    for (int clock = 0; clock < clocks.size(); ++clock) {
        if (clock == 0 || !looksTheSame(clocks[clock][row], clocks[clock - 1][row])) {
            distinct.append(clock);
        }
    }
    return distinct;
}

} // namespace zel::tool
