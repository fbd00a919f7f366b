// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "device/LibrarySettings.h"

#include "terminal/Messages.h"
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/Formatting.h>

namespace zel::tool {

namespace i18n = zel::utility::i18n;

int libraryClock()
{
    const Messages dropped;
    const QString pattern = i18n::timeFormat(QLocale::c(), i18n::DateFormat::Short);
    return pattern.contains(QLatin1String("AP"), Qt::CaseInsensitive) ? 12 : 24;
}

void readClock()
{
    libraryClock();
}

void readSettings()
{
    i18n::toPercentageString(0, 0, 0); // reads only the region
    readClock();
    const Messages dropped;
    i18n::CustomDateFormatter(QStringLiteral("z")).format({});
}

} // namespace zel::tool
