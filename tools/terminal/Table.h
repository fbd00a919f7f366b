#ifndef ZEL_TOOL_TABLE_H
#define ZEL_TOOL_TABLE_H

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace zel::tool {

class Console;

/**
 * Text in columns that stand below each other on a terminal, where a Chinese character is two columns wide and a
 * combining one none.
 */
class Table
{
public:
    void add(const QStringList& cells) { m_rows.append(cells); }

    /** The columns that the table takes on a terminal. */
    int width() const;

    /** On a terminal, text that runs from right to left is isolated, so that its neighbours stay in their place. */
    void write(Console& console) const;

private:
    QList<int> columnWidths() const;

    QList<QStringList> m_rows;
};

} // namespace zel::tool

#endif
