// What a plug-in does with the library; tst_plugin loads it.

#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

extern "C" Q_DECL_EXPORT void relativeTexts(const QLocale& locale, QStringList& texts)
{
    const QDateTime anchor(QDate(2024, 5, 15), QTime(12, 0), Qt::UTC);
    RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
    formatter.setAnchorTime(anchor);
    formatter.setLocale(locale);
    formatter.setClockFormat(ClockFormat::Use24hourClock);
    texts = {formatter.format(anchor.addSecs(-10800)), formatter.format(anchor.addDays(-1))};
}
