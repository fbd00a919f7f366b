// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "gallery/GalleryTable.h"

#include <algorithm>

namespace zel::tool {

namespace {

QByteArray line(QStringList cells)
{
    std::transform(cells.begin(), cells.end(), cells.begin(), &GalleryTable::cell);
    return cells.join(QLatin1Char('\t')).toUtf8() + '\n';
}

} // namespace

QString GalleryTable::cell(QString text)
{
    const auto separates = [](QChar c) {
        return c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r');
    };
    std::replace_if(text.begin(), text.end(), separates, QLatin1Char(' '));
    return text;
}

QByteArray GalleryTable::header()
{
    return line({QStringLiteral("locale"), QStringLiteral("clock"), QStringLiteral("group"), QStringLiteral("name"),
                 QStringLiteral("pattern"), QStringLiteral("text"), QStringLiteral("notes")});
}

QByteArray GalleryTable::lines(const GalleryEntry& entry, const QStringList& clocks)
{
    QByteArray lines;
    for (int clock = 0; clock < entry.clocks.size(); ++clock) {
        for (const GalleryRow& row : entry.clocks[clock]) {
            lines += line({entry.locale, clocks[clock], row.group, row.name, row.now.pattern, row.now.text,
                           row.notes.join(QLatin1String("; "))});
        }
    }
    return lines.isEmpty() ? line({entry.locale, {}, {}, {}, {}, {}, QStringLiteral("not known to Qt")}) : lines;
}

} // namespace zel::tool
