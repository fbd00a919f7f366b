// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "gallery/GalleryComparison.h"

#include "gallery/GalleryTable.h"
#include "terminal/Failure.h"
#include <numeric>
#include <QtCore/QFile>

namespace zel::tool {

namespace {

QString placeOf(const QString& clock, const QString& group, const QString& name)
{
    return QStringList{clock, group, name}.join(QLatin1Char('\t'));
}

} // namespace

GalleryComparison::GalleryComparison(const QString& file)
{
    QFile table(file);
    if (!table.open(QIODevice::ReadOnly | QIODevice::Text)) {
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
        if (cells[GalleryTable::Clock].isEmpty()) {
            continue; // a locale that Qt does not know
        }
        m_older[cells[GalleryTable::Locale]].insert(
            placeOf(cells[GalleryTable::Clock], cells[GalleryTable::Group], cells[GalleryTable::Name]),
            {cells[GalleryTable::Pattern], cells[GalleryTable::Text]});
    }
}

void GalleryComparison::mark(QList<GalleryEntry>& entries, const QStringList& clocks)
{
    for (GalleryEntry& entry : entries) {
        if (entry.clocks.isEmpty()) {
            continue;
        }
        if (m_older.contains(entry.locale)) {
            ++m_locales;
            mark(entry, m_older.take(entry.locale), clocks);
        } else {
            m_newLocales.append(entry.locale);
        }
    }
}

void GalleryComparison::mark(GalleryEntry& entry, Texts older, const QStringList& clocks)
{
    bool differs = false;
    for (int clock = 0; clock < entry.clocks.size(); ++clock) {
        for (GalleryRow& row : entry.clocks[clock]) {
            const bool rowDiffers = mark(row, older, placeOf(clocks[clock], row.group, row.name));
            differs = rowDiffers || differs;
        }
    }
    m_differentLocales += differs ? 1 : 0;
    m_goneTexts += static_cast<int>(older.size());
}

bool GalleryComparison::mark(GalleryRow& row, Texts& older, const QString& place)
{
    if (!older.contains(place)) {
        ++m_newTexts;
        return false;
    }
    ++m_texts;
    const GalleryText before = older.take(place);
    if (before == GalleryText{GalleryTable::cell(row.now.pattern), GalleryTable::cell(row.now.text)}) {
        return false;
    }
    row.before = before;
    ++m_differences[row.group];
    return true;
}

QStringList GalleryComparison::goneLocales() const
{
    QStringList gone = m_older.keys();
    gone.sort();
    return gone;
}

int GalleryComparison::differentTexts() const
{
    return std::accumulate(m_differences.begin(), m_differences.end(), 0);
}

} // namespace zel::tool
