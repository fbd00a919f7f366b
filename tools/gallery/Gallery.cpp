// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "gallery/Gallery.h"

#include "device/Assignments.h"
#include "device/Device.h"
#include "device/LibrarySettings.h"
#include "device/ThrowAwayDevice.h"
#include "gallery/GalleryComparison.h"
#include "gallery/GalleryPage.h"
#include "gallery/GalleryTable.h"
#include "terminal/Console.h"
#include "terminal/Failure.h"
#include "terminal/ProgressBar.h"
#include <algorithm>
#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <zel/system/LocaleName.h>

namespace zel::tool {

namespace {

// A change of the device reaches the library through the event loop.
void useClock(const QString& clock)
{
    constexpr int timeoutMs = 5000;
    Device::set({{Assignments::hourFormat(), clock}}, {});
    QElapsedTimer timer;
    timer.start();
    while (libraryClock() != clock.toInt()) {
        if (timer.elapsed() > timeoutMs) {
            throw Failure(QStringLiteral("the library does not follow the clock of the device"));
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
    }
}

bool isMarked(const GalleryEntry& entry)
{
    const auto hasNotes = [](const GalleryRow& row) { return !row.notes.isEmpty(); };
    return entry.clocks.isEmpty() ||
           std::any_of(entry.clocks.begin(), entry.clocks.end(),
                       [&](const QList<GalleryRow>& rows) { return std::any_of(rows.begin(), rows.end(), hasNotes); });
}

} // namespace

Gallery::Gallery(const QStringList& locales, const Console& console)
{
    for (const QString& name : locales) {
        m_entries.append({name, {}});
    }
    const ThrowAwayDevice device(QStringLiteral("time-zone=UTC"));
    const QStringList clocks = {QStringLiteral("12"), QStringLiteral("24")};
    ProgressBar progress(static_cast<int>(m_entries.size() * clocks.size()));
    for (const QString& clock : clocks) {
        useClock(clock);
        addRows(progress, console);
        m_clocks.append(clock + QStringLiteral("-hour clock"));
    }
}

// Adds the rows under the current clock of the device.
void Gallery::addRows(ProgressBar& progress, const Console& console)
{
    for (GalleryEntry& entry : m_entries) {
        if (const int signal = console.takeSignal(); signal != 0) {
            throw Console::Interrupted{signal};
        }
        progress.step(entry.locale);
        if (const auto locale = zel::system::LocaleName::find(entry.locale)) {
            // Without a region setting, the region is that of the environment, which needs no file.
            qputenv("LC_ALL", entry.locale.toLatin1());
            entry.clocks.append(GalleryEntry::rows(*locale));
        }
    }
}

int Gallery::marked() const
{
    return static_cast<int>(std::count_if(m_entries.begin(), m_entries.end(), &isMarked));
}

void Gallery::compareWith(GalleryComparison& comparison)
{
    comparison.mark(m_entries, m_clocks);
    m_isCompared = true;
}

QByteArray Gallery::page() const
{
    QByteArray html = GalleryPage::begin(size(), marked(), m_isCompared);
    for (const GalleryEntry& entry : m_entries) {
        html += GalleryPage::section(entry, m_clocks);
    }
    return html + GalleryPage::end();
}

QByteArray Gallery::table() const
{
    QByteArray text = GalleryTable::header();
    for (const GalleryEntry& entry : m_entries) {
        text += GalleryTable::lines(entry, m_clocks);
    }
    return text;
}

} // namespace zel::tool
