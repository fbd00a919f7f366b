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
namespace GallerySummary {

/** @param comparison null without a comparison */
QJsonObject json(const Gallery& gallery, const GalleryComparison* comparison);
void write(const Gallery& gallery, const GalleryComparison* comparison, Console& console);

/** Each different text, old and new. */
void writeDifferences(const Gallery& gallery, Console& console);

} // namespace GallerySummary

} // namespace zel::tool

#endif
