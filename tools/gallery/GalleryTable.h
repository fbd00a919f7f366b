// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_GALLERYTABLE_H
#define ZEL_TOOL_GALLERYTABLE_H

#include "gallery/GalleryEntry.h"
#include <QtCore/QByteArray>
#include <QtCore/QStringList>

namespace zel::tool {

/** The gallery as tab-separated text, one text per line, to compare versions of ICU. */
namespace GalleryTable {

QByteArray header();
/** @param clocks the names of the clocks */
QByteArray lines(const GalleryEntry& entry, const QStringList& clocks);

/** The cells of one line: locale, clock, group, name, pattern, text, notes. */
enum Column { Locale, Clock, Group, Name, Pattern, Text, Notes };

/** A text for a cell: without tabs and line ends. */
QString cell(QString text);

} // namespace GalleryTable

} // namespace zel::tool

#endif
