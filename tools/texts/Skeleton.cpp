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
                          "(MMM its short name, MMMM its name), d day, E weekday (EEEE its name), h hour on\n"
                          "the clock of the device, m minute, s second, z time zone. The region decides how\n"
                          "they are put together. Without z, date and time are shown as they are written;\n"
                          "with it, the moment is shown in the time zone of the device.");
}

} // namespace zel::tool
