// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "terminal/Failure.h"

#include <algorithm>

namespace zel::tool {

QString printable(QString text)
{
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return !c.isPrint() && !c.isSurrogate(); }, QLatin1Char('?'));
    return text;
}

QString quoted(const QString& word)
{
    constexpr int enough = 60;
    return QLatin1Char('\'') + printable(word.left(enough)) + QLatin1String(word.size() > enough ? "...'" : "'");
}

void requireConnection(bool isConnected)
{
    if (!isConnected) {
        throw Failure(QStringLiteral("cannot connect to a signal"));
    }
}

} // namespace zel::tool
