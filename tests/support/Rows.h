// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TESTS_ROWS_H
#define ZEL_TESTS_ROWS_H

#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtTest/QTest>
#include <tuple>

/** The names of the columns of any table. */
constexpr const char* columnNames[] = {"1", "2", "3", "4", "5", "6"};

/** Adds the columns of a test's table. */
template <typename... Columns>
void addColumns()
{
    const auto* name = std::begin(columnNames);
    (QTest::addColumn<Columns>(*name++), ...);
}

/** The cells of the current row. */
template <typename... Columns>
std::tuple<Columns...> cells()
{
    auto next = [name = std::begin(columnNames)]() mutable { return *name++; };
    return std::tuple<Columns...>{*static_cast<const Columns*>(QTest::qData(next(), qMetaTypeId<Columns>()))...};
}

/** Adds the columns of a test's table, and then a row with each call. */
template <typename... Columns>
class NamedRow
{
public:
    NamedRow() { addColumns<Columns...>(); }

    void operator()(const QString& name, const Columns&... cells) const
    {
        (QTest::newRow(qPrintable(name)) << ... << cells);
    }
};

/** As above, for rows named after their contents. */
template <typename... Columns>
class Row : private NamedRow<Columns...>
{
public:
    void operator()(const Columns&... cells) const
    {
        const QStringList texts{QVariant::fromValue(cells).toString()...};
        NamedRow<Columns...>::operator()(texts.join(QLatin1Char(' ')), cells...);
    }
};

#endif
