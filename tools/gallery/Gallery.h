// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_GALLERY_H
#define ZEL_TOOL_GALLERY_H

#include "gallery/GalleryEntry.h"
#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QStringList>

namespace zel::tool {

class Console;
class GalleryComparison;
class ProgressBar;

/** The texts of many locales, under each clock. */
class Gallery
{
public:
    /** Formats all texts on a simulated device, with progress on a terminal. Ends early on a signal. */
    Gallery(const QStringList& locales, const Console& console);

    int size() const { return static_cast<int>(m_entries.size()); }
    /** The number of locales that have a text with notes, or that Qt does not know. */
    int marked() const;

    void compareWith(GalleryComparison& comparison);
    const QList<GalleryEntry>& entries() const { return m_entries; }
    /** The names of the clocks. */
    const QStringList& clocks() const { return m_clocks; }

    /** As HTML. */
    QByteArray page() const;
    /** As tab-separated text. */
    QByteArray table() const;

private:
    void addRows(ProgressBar& progress, const Console& console);

    QList<GalleryEntry> m_entries;
    QStringList m_clocks;
    bool m_isCompared = false;
};

} // namespace zel::tool

#endif
