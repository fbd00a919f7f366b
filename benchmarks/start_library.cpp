// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// The first text of an application that uses the library.

#include "Stopwatch.h"
#include <QtCore/QDateTime>
#include <zel/utility/i18n/CustomDateFormatter.h>

int main()
{
    const Stopwatch stopwatch;
    const zel::utility::i18n::CustomDateFormatter formatter(QStringLiteral("yMMMd"));
    const QString text = formatter.format(QDateTime::fromString(QStringLiteral("2012-09-03T10:30Z"), Qt::ISODate));
    stopwatch.stop();
    std::puts(text.toUtf8().constData());
    return 0;
}
