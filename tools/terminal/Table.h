// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_TABLE_H
#define ZEL_TOOL_TABLE_H

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace zel::tool {

class Console;

/** Aligned columns of text on a terminal, where a Chinese character is two columns wide and a combining one none. */
class Table
{
public:
    void add(const QStringList& cells) { m_rows.append(cells); }

    /** The width of the table on a terminal. */
    int width() const;

    /** On a terminal, right-to-left text is isolated, so that its neighbours keep their places. */
    void write(Console& console) const;

private:
    QList<int> columnWidths() const;

    QList<QStringList> m_rows;
};

} // namespace zel::tool

#endif
