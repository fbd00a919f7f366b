#include "bridge/DateTime.h"

namespace zel::utility::i18n {

UDate DateTime::toICU(const QDateTime& dateTime)
{
    return static_cast<UDate>(dateTime.toMSecsSinceEpoch());
}

UDate DateTime::wallClock(QDateTime dateTime)
{
    dateTime.setTimeSpec(Qt::UTC);
    return toICU(dateTime);
}

} // namespace zel::utility::i18n
