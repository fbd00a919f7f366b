// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "texts/Skeleton.h"

#include "terminal/Failure.h"
#include <algorithm>

namespace zel::tool {

QString Skeleton::from(const QStringList& words)
{
    if (words.isEmpty()) {
        throw Failure::usage(QStringLiteral("no skeleton given"));
    }
    const QString& skeleton = words.first();
    const QLatin1String fields("GyYuUrQqMLlwWdDFgEecabBhHkKjJCmsSAzZOvVXx");
    const auto isField = [&fields](QChar c) { return fields.contains(c); };
    if (skeleton.isEmpty() || !std::all_of(skeleton.begin(), skeleton.end(), isField)) {
        throw Failure(quoted(skeleton) + QStringLiteral(" is not a skeleton such as yMMMd or hm"));
    }
    return skeleton;
}

QString Skeleton::description()
{
    return QStringLiteral("A skeleton names fields in any order and without punctuation: y year, M month\n"
                          "(MMM short name, MMMM full name), d day, E weekday (EEEE full name), h hour under\n"
                          "the clock of the device, m minute, s second, z time zone. The locale determines\n"
                          "order and punctuation. Without z, date and time are shown as written; with z, the\n"
                          "moment is shown in the time zone of the device.");
}

} // namespace zel::tool
