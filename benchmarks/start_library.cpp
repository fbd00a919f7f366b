// The first text of an application that uses the library.

#include "Stopwatch.h"
#include <QtCore/QDateTime>
#include <zel/utility/i18n/CustomDateFormatter.h>

int main()
{
    const Stopwatch stopwatch;
    const zel::utility::i18n::CustomDateFormatter formatter(QStringLiteral("yMMMd"));
    const QString text = formatter.format(QDateTime(QDate(2012, 5, 16), QTime(10, 30), Qt::UTC));
    stopwatch.stop();
    std::puts(text.toUtf8().constData());
    return 0;
}
