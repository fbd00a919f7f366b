// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_GALLERYPAGE_H
#define ZEL_TOOL_GALLERYPAGE_H

#include "gallery/GalleryEntry.h"
#include <QtCore/QByteArray>
#include <QtCore/QStringList>

namespace zel::tool {

/** The gallery as one self-contained HTML page; only its filter needs a script. */
namespace GalleryPage {

/**
 * @param locales the number of locales, and of those with marks
 * @param isCompared whether rows may have an older text
 */
QByteArray begin(int locales, int marked, bool isCompared);
/** @param clocks the names of the clocks */
QByteArray section(const GalleryEntry& entry, const QStringList& clocks);
QByteArray end();

} // namespace GalleryPage

} // namespace zel::tool

#endif
