// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "gallery/GallerySummary.h"

#include "gallery/Gallery.h"
#include "gallery/GalleryComparison.h"
#include "terminal/Console.h"
#include "terminal/Table.h"
#include <QtCore/QJsonArray>

namespace zel::tool {

namespace {

QString counted(int count, const char* noun)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(QLatin1String(noun), QLatin1String(count == 1 ? "" : "s"));
}

void writeTexts(const char* what, int count, Console& console)
{
    if (count > 0) {
        console.line(counted(count, "text") + QLatin1String(what));
    }
}

void writeLocales(const char* what, const QStringList& names, Console& console)
{
    if (!names.isEmpty()) {
        console.line(counted(static_cast<int>(names.size()), "locale") + QLatin1String(what) +
                     names.join(QLatin1String(", ")));
    }
}

void write(const GalleryComparison& comparison, Console& console)
{
    console.line(QStringLiteral("%1 of %2 differ, in %3 of %4")
                     .arg(comparison.differentTexts())
                     .arg(counted(comparison.texts(), "text"))
                     .arg(comparison.differentLocales())
                     .arg(counted(comparison.locales(), "locale")));
    Table table;
    const QMap<QString, int> differences = comparison.differences();
    for (auto group = differences.begin(); group != differences.end(); ++group) {
        table.add({QLatin1String("  ") + group.key(), QString::number(*group)});
    }
    table.write(console);
    writeTexts(" not in the older table", comparison.newTexts(), console);
    writeTexts(" only in the older table", comparison.goneTexts(), console);
    writeLocales(" not in the older table: ", comparison.newLocales(), console);
    writeLocales(" only in the older table: ", comparison.goneLocales(), console);
}

// A pattern may differ where the text does not.
QString shown(const GalleryText& text)
{
    return text.pattern.isEmpty() ? text.text : text.text + QStringLiteral("  (%1)").arg(text.pattern);
}

} // namespace

QJsonObject GallerySummary::json(const Gallery& gallery, const GalleryComparison* comparison)
{
    QJsonObject summary{{QStringLiteral("locales"), gallery.size()}, {QStringLiteral("marked"), gallery.marked()}};
    if (comparison != nullptr) {
        QJsonObject differences;
        const QMap<QString, int> groups = comparison->differences();
        for (auto group = groups.begin(); group != groups.end(); ++group) {
            differences[group.key()] = *group;
        }
        summary[QStringLiteral("compared")] =
            QJsonObject{{QStringLiteral("texts"), comparison->texts()},
                        {QStringLiteral("locales"), comparison->locales()},
                        {QStringLiteral("differentLocales"), comparison->differentLocales()},
                        {QStringLiteral("differences"), differences},
                        {QStringLiteral("newTexts"), comparison->newTexts()},
                        {QStringLiteral("goneTexts"), comparison->goneTexts()},
                        {QStringLiteral("newLocales"), QJsonArray::fromStringList(comparison->newLocales())},
                        {QStringLiteral("goneLocales"), QJsonArray::fromStringList(comparison->goneLocales())}};
    }
    return summary;
}

void GallerySummary::write(const Gallery& gallery, const GalleryComparison* comparison, Console& console)
{
    console.line(counted(gallery.size(), "locale") + QStringLiteral(", %1 of them with a mark").arg(gallery.marked()));
    if (comparison != nullptr) {
        zel::tool::write(*comparison, console);
    }
}

void GallerySummary::writeDifferences(const Gallery& gallery, Console& console)
{
    for (const GalleryEntry& entry : gallery.entries()) {
        for (int clock = 0; clock < entry.clocks.size(); ++clock) {
            for (const GalleryRow& row : entry.clocks[clock]) {
                if (row.before) {
                    const QStringList place = {entry.locale, gallery.clocks()[clock], row.group, row.name};
                    console.line(place.join(QLatin1String(", ")));
                    console.line(QStringLiteral("  before  ") + shown(*row.before));
                    console.line(QStringLiteral("  now     ") + shown(row.now));
                }
            }
        }
    }
}

} // namespace zel::tool
