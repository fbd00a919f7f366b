// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_GALLERYSUMMARY_H
#define ZEL_TOOL_GALLERYSUMMARY_H

#include <QtCore/QJsonObject>

namespace zel::tool {

class Console;
class Gallery;
class GalleryComparison;

/** The figures of a gallery, and of its comparison with an older table. */
class GallerySummary
{
public:
    GallerySummary() = delete;

    /** @param comparison null without a comparison */
    static QJsonObject json(const Gallery& gallery, const GalleryComparison* comparison);
    static void write(const Gallery& gallery, const GalleryComparison* comparison, Console& console);

    /** Each different text, old and new. */
    static void writeDifferences(const Gallery& gallery, Console& console);
};

} // namespace zel::tool

#endif
