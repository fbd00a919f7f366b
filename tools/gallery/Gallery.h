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

/** What the library answers for many locales, under each clock. */
class Gallery
{
public:
    /** Asks the library on a device of its own, with progress on a terminal. Ends early when a signal asks for it. */
    Gallery(const QStringList& locales, const Console& console);

    int size() const { return static_cast<int>(m_entries.size()); }
    /** How many locales have a text with notes, or are not known to Qt. */
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
    void fill(ProgressBar& progress, const Console& console);

    QList<GalleryEntry> m_entries;
    QStringList m_clocks;
    bool m_isCompared = false;
};

} // namespace zel::tool

#endif
