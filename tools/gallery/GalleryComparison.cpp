// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "gallery/GalleryComparison.h"

#include "gallery/GalleryTable.h"
#include "terminal/Failure.h"
#include <numeric>
#include <QtCore/QFile>

namespace zel::tool {

namespace {

QString placeOf(const QStringList& cells)
{
    return QStringList(cells.mid(GalleryTable::Locale, GalleryTable::Name + 1)).join(QLatin1Char('\t'));
}

} // namespace

GalleryComparison::GalleryComparison(const QString& file)
{
    QFile table(file);
    if (!table.open(QIODevice::ReadOnly)) {
        throw Failure(QStringLiteral("cannot read ") + quoted(file) + QLatin1String(": ") + table.errorString());
    }
    if (table.readLine() != GalleryTable::header()) {
        throw Failure(quoted(file) + QStringLiteral(" is not a table written with --tsv"));
    }
    while (!table.atEnd()) {
        const QString line = QString::fromUtf8(table.readLine());
        const QStringList cells = line.split(QLatin1Char('\t'));
        if (cells.size() != GalleryTable::Notes + 1) {
            throw Failure(quoted(file) + QStringLiteral(" has a damaged line: ") + quoted(line.trimmed()));
        }
        m_olderLocales.insert(cells[GalleryTable::Locale]);
        m_older.insert(placeOf(cells), {cells[GalleryTable::Pattern], cells[GalleryTable::Text]});
    }
}

void GalleryComparison::mark(QList<GalleryEntry>& entries, const QStringList& clocks)
{
    for (GalleryEntry& entry : entries) {
        if (m_olderLocales.remove(entry.locale)) {
            ++m_locales;
            mark(entry, clocks);
        } else {
            m_newLocales.append(entry.locale);
        }
    }
}

void GalleryComparison::mark(GalleryEntry& entry, const QStringList& clocks)
{
    bool differs = false;
    for (int clock = 0; clock < entry.clocks.size(); ++clock) {
        for (GalleryRow& row : entry.clocks[clock]) {
            const bool rowDiffers = mark(row, placeOf({entry.locale, clocks[clock], row.group, row.name}));
            differs = rowDiffers || differs;
        }
    }
    m_differentLocales += differs ? 1 : 0;
}

bool GalleryComparison::mark(GalleryRow& row, const QString& place)
{
    const auto older = m_older.constFind(place);
    if (older == m_older.constEnd()) {
        ++m_newTexts;
        return false;
    }
    ++m_texts;
    if (*older == GalleryText{GalleryTable::cell(row.now.pattern), GalleryTable::cell(row.now.text)}) {
        return false;
    }
    row.before = *older;
    ++m_differences[row.group];
    return true;
}

QStringList GalleryComparison::goneLocales() const
{
    QStringList gone = m_olderLocales.values();
    gone.sort();
    return gone;
}

int GalleryComparison::differentTexts() const
{
    return std::accumulate(m_differences.begin(), m_differences.end(), 0);
}

} // namespace zel::tool
