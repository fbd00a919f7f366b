#include "gallery/GalleryEntry.h"

#include "terminal/Messages.h"
#include "texts/Format.h"
#include "texts/Ladder.h"
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

namespace zel::tool {

namespace {

using zel::utility::i18n::CustomDateFormatter;
using zel::utility::i18n::RelativeDateFormatter;
namespace RelativeDateFormat = zel::utility::i18n::RelativeDateFormat;

// In the evening, when the clocks differ, and in a zone that is the same everywhere.
QDateTime moment()
{
    return QDateTime::fromString(QStringLiteral("2012-05-16T22:30Z"), Qt::ISODate);
}

/** Collects rows, each with the messages that came up while it was made. */
class Rows
{
public:
    void addFormats(const QLocale& locale)
    {
        for (const Format& format : Format::all()) {
            const QString pattern = format.pattern(locale);
            const QString text = locale.toString(moment(), pattern);
            QStringList notes = m_messages.take();
            if (format.isFallback(locale)) {
                notes.prepend(QStringLiteral("Qt's own pattern: ICU's has a field that Qt lacks"));
            }
            m_messages.take();
            m_rows.append({format.kind(), format.length(), pattern, text, notes});
        }
    }

    void addCustom(const QString& skeleton)
    {
        const QString text = CustomDateFormatter(skeleton).format(moment());
        m_rows.append({QStringLiteral("custom"), skeleton, skeleton, text, m_messages.take()});
    }

    void addLadder(const QLocale& locale, RelativeDateFormat::Type type, const QString& group)
    {
        RelativeDateFormatter formatter(type);
        formatter.setLocale(locale);
        formatter.setAnchorTime(Ladder::exampleAnchor());
        for (const Rung& rung : Ladder::rungs(type, Ladder::exampleAnchor())) {
            const QString text = formatter.format(rung.moment);
            m_rows.append({group, rung.distance, {}, text, m_messages.take()});
        }
    }

    const QList<GalleryRow>& all() const { return m_rows; }

private:
    Messages m_messages;
    QList<GalleryRow> m_rows;
};

bool looksTheSame(const GalleryRow& one, const GalleryRow& other)
{
    return one.pattern == other.pattern && one.text == other.text && one.notes == other.notes;
}

} // namespace

QList<GalleryRow> GalleryEntry::rows(const QLocale& locale)
{
    Rows rows;
    rows.addFormats(locale);
    rows.addCustom(QStringLiteral("yMMMMEEEEdhm"));
    rows.addLadder(locale, RelativeDateFormat::TimeCritical, QStringLiteral("relative, time-critical"));
    rows.addLadder(locale, RelativeDateFormat::NonTimeCritical, QStringLiteral("relative, non-time-critical"));
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
