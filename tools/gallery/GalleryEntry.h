// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_GALLERYENTRY_H
#define ZEL_TOOL_GALLERYENTRY_H

#include <optional>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

class QLocale;

namespace zel::tool {

/** A text with its pattern or skeleton; without one for percentages and relative dates. */
struct GalleryText
{
    QString pattern;
    QString text;

    bool operator==(const GalleryText& other) const { return pattern == other.pattern && text == other.text; }
    bool operator!=(const GalleryText& other) const { return !(*this == other); }
};

/** One text of a locale, with its pattern and notes. */
struct GalleryRow
{
    QString group; ///< "date", "relative, time-critical", ...
    QString name;  ///< within the group
    GalleryText now;
    QStringList notes;                 ///< a fallback to Qt, and the messages of the library
    std::optional<GalleryText> before; ///< the older text, if it differs
};

/** The texts of one locale: the same rows under each clock. */
struct GalleryEntry
{
    QString locale;
    QList<QList<GalleryRow>> clocks; ///< empty if Qt does not know the locale

    int size() const { return clocks.isEmpty() ? 0 : static_cast<int>(clocks.first().size()); }

    /** The rows for a locale under the clock and in the region of the device. */
    static QList<GalleryRow> rows(const QLocale& locale);

    /** The clocks under which a row differs from the previous clock. */
    QList<int> distinctClocks(int row) const;
};

} // namespace zel::tool

#endif
