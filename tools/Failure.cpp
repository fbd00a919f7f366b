#include "Failure.h"

#include <algorithm>

namespace zel::tool {

QString quoted(const QString& word)
{
    constexpr int enough = 60;
    QString text = word.left(enough);
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return !c.isPrint() && !c.isSurrogate(); }, QLatin1Char('?'));
    return QLatin1Char('\'') + text + QLatin1String(word.size() > enough ? "...'" : "'");
}

} // namespace zel::tool
