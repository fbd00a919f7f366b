#ifndef ZEL_TESTS_ROWS_H
#define ZEL_TESTS_ROWS_H

#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtTest/QTest>

/** Adds the columns of a test's table. */
template <typename... Columns, typename... Names>
void addColumns(const Names&... names)
{
    (QTest::addColumn<Columns>(names), ...);
}

/** Adds the columns of a test's table, and then a row with each call. */
template <typename... Columns>
class NamedRow
{
public:
    template <typename... Names>
    explicit NamedRow(const Names&... names)
    {
        addColumns<Columns...>(names...);
    }

    void operator()(const QString& name, const Columns&... cells) const
    {
        (QTest::newRow(qPrintable(name)) << ... << cells);
    }
};

/** As above, for rows that are named after what is in them. */
template <typename... Columns>
class Row : private NamedRow<Columns...>
{
public:
    using NamedRow<Columns...>::NamedRow;

    void operator()(const Columns&... cells) const
    {
        const QStringList texts{QVariant::fromValue(cells).toString()...};
        NamedRow<Columns...>::operator()(texts.join(QLatin1Char(' ')), cells...);
    }
};

#endif
