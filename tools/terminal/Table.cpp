// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "terminal/Table.h"

#include "terminal/Console.h"
#include <algorithm>
#include <numeric>
#include <unicode/uchar.h>

namespace zel::tool {

namespace {

constexpr int gap = 2;

int widthOf(uint c)
{
    const auto category = u_charType(static_cast<UChar32>(c));
    if (category == U_NON_SPACING_MARK || category == U_ENCLOSING_MARK || category == U_FORMAT_CHAR) {
        return 0;
    }
    const int eastAsian = u_getIntPropertyValue(static_cast<UChar32>(c), UCHAR_EAST_ASIAN_WIDTH);
    return eastAsian == U_EA_WIDE || eastAsian == U_EA_FULLWIDTH ? 2 : 1;
}

int widthOf(const QString& text)
{
    const auto characters = text.toUcs4();
    return std::accumulate(characters.begin(), characters.end(), 0,
                           [](int width, uint c) { return width + widthOf(c); });
}

QString isolated(const QString& text)
{
    const bool rightToLeft = std::any_of(text.begin(), text.end(), [](QChar c) {
        return c.direction() == QChar::DirR || c.direction() == QChar::DirAL;
    });
    return rightToLeft ? QChar(0x2068) + text + QChar(0x2069) : text;
}

} // namespace

QList<int> Table::columnWidths() const
{
    QList<int> widths;
    for (const QStringList& row : m_rows) {
        for (int column = 0; column < row.size(); ++column) {
            if (column == widths.size()) {
                widths.append(0);
            }
            widths[column] = std::max(widths[column], widthOf(row[column]));
        }
    }
    return widths;
}

int Table::width() const
{
    const QList<int> widths = columnWidths();
    return std::accumulate(widths.begin(), widths.end(), -gap, [](int sum, int width) { return sum + width + gap; });
}

void Table::write(Console& console) const
{
    const QList<int> widths = columnWidths();
    for (const QStringList& row : m_rows) {
        QString line;
        int padding = 0;
        for (int column = 0; column < row.size(); ++column) {
            line += QString(padding, QLatin1Char(' ')) + (console.isTerminal() ? isolated(row[column]) : row[column]);
            padding = gap + widths[column] - widthOf(row[column]);
        }
        console.line(line);
    }
}

} // namespace zel::tool
