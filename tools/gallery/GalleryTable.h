#ifndef ZEL_TOOL_GALLERYTABLE_H
#define ZEL_TOOL_GALLERYTABLE_H

#include "gallery/GalleryEntry.h"
#include <QtCore/QByteArray>
#include <QtCore/QStringList>

namespace zel::tool {

/** The gallery as tab-separated text, one text a line, to compare between versions of ICU. */
class GalleryTable
{
public:
    GalleryTable() = delete;

    static QByteArray header();
    /** @param clocks the names of the clocks */
    static QByteArray lines(const GalleryEntry& entry, const QStringList& clocks);
};

} // namespace zel::tool

#endif
