#ifndef ZEL_TOOL_GALLERYENTRY_H
#define ZEL_TOOL_GALLERYENTRY_H

#include <optional>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

class QLocale;

namespace zel::tool {

/** A text, and the pattern or skeleton that it was written with; none for percentages and relative dates. */
struct GalleryText
{
    QString pattern;
    QString text;

    bool operator==(const GalleryText& other) const { return pattern == other.pattern && text == other.text; }
    bool operator!=(const GalleryText& other) const { return !(*this == other); }
};

/** One text of a locale, how it came about, and what there is to say about it. */
struct GalleryRow
{
    QString group; ///< "date", "relative, time-critical", ...
    QString name;  ///< within the group
    GalleryText now;
    QStringList notes;                 ///< that Qt had to answer, and the messages of the library
    std::optional<GalleryText> before; ///< in the table compared with, where it was another one
};

/** What the library answers for one locale: the same rows under each clock. */
struct GalleryEntry
{
    QString locale;
    QList<QList<GalleryRow>> clocks; ///< empty where Qt does not know the locale, so that nobody can ask for it

    int size() const { return clocks.isEmpty() ? 0 : static_cast<int>(clocks.first().size()); }

    /** The rows for a locale under the clock and in the region of the device. */
    static QList<GalleryRow> rows(const QLocale& locale);

    /** The clocks under which a row is not the same as under the one before. */
    QList<int> distinctClocks(int row) const;
};

} // namespace zel::tool

#endif
