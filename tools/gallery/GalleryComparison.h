// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_GALLERYCOMPARISON_H
#define ZEL_TOOL_GALLERYCOMPARISON_H

#include "gallery/GalleryEntry.h"
#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QStringList>

namespace zel::tool {

/** The differences from an older table of the gallery. */
class GalleryComparison
{
public:
    /** @param file a GalleryTable; a Failure otherwise */
    explicit GalleryComparison(const QString& file);

    /** Sets the older text of each row that differs, and counts. @param clocks the names of the clocks */
    void mark(QList<GalleryEntry>& entries, const QStringList& clocks);
    /** For a selection of locales: the others do not count as gone. */
    void forgetOthers() { m_older.clear(); }

    int locales() const { return m_locales; } ///< that are in both
    int texts() const { return m_texts; }     ///< that are in both
    int newTexts() const { return m_newTexts; }
    int goneTexts() const { return m_goneTexts; } ///< of the compared locales, only in the older table
    QStringList newLocales() const { return m_newLocales; }
    /** Those of the older table that are not among the entries, or that Qt no longer knows. */
    QStringList goneLocales() const;
    int differentLocales() const { return m_differentLocales; }
    int differentTexts() const;
    /** The number of different texts by group. */
    QMap<QString, int> differences() const { return m_differences; }

private:
    using Texts = QHash<QString, GalleryText>; ///< by place: clock, group and name

    void mark(GalleryEntry& entry, Texts older, const QStringList& clocks);
    /** Takes the older text of a row. Returns whether it differs, and sets it in the row then. */
    bool mark(GalleryRow& row, Texts& older, const QString& place);

    QHash<QString, Texts> m_older; ///< by locale, without those that have been compared

    int m_locales = 0;
    int m_texts = 0;
    int m_newTexts = 0;
    int m_goneTexts = 0;
    int m_differentLocales = 0;
    QStringList m_newLocales;
    QMap<QString, int> m_differences;
};

} // namespace zel::tool

#endif
