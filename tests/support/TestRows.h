// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

#include <tuple>

/// The columns of a data-driven test, by type and name; each call adds a row. Values left out at its end are empty.
template <typename... Columns>
class TestRows
{
    template <typename>
    using Name = const char*;

public:
    explicit TestRows(Name<Columns>... names) { (QTest::addColumn<Columns>(names), ...); }
    void operator()(const char* name, const Columns&... values) const { (QTest::newRow(name) << ... << values); }
    template <typename... First>
    requires(sizeof...(First) < sizeof...(Columns)) void operator()(const char* name, const First&... first) const
    {
        (*this)(name, first..., std::tuple_element_t<sizeof...(First), std::tuple<Columns...>>());
    }
};

/// The values of some columns of the row that is tested, by type and name.
template <typename... Columns, typename... Names>
std::tuple<Columns...> fetched(Names... names)
{
    return {*static_cast<const Columns*>(QTest::qData(names, qMetaTypeId<Columns>()))...};
}
