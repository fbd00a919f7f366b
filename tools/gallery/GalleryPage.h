#ifndef ZEL_TOOL_GALLERYPAGE_H
#define ZEL_TOOL_GALLERYPAGE_H

#include "gallery/GalleryEntry.h"
#include <QtCore/QByteArray>
#include <QtCore/QStringList>

namespace zel::tool {

/** The gallery as one HTML page, which needs nothing beside itself and, but for its filter, no script. */
class GalleryPage
{
public:
    GalleryPage() = delete;

    /**
     * @param locales how many there are on the page, and of how many of them texts are marked
     * @param isCompared whether rows know what an older table has
     */
    static QByteArray begin(int locales, int marked, bool isCompared);
    /** @param clocks the names of the clocks */
    static QByteArray section(const GalleryEntry& entry, const QStringList& clocks);
    static QByteArray end();
};

} // namespace zel::tool

#endif
