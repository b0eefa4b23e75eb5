#pragma once

#include <QTest>

#include <tuple>

namespace Glyphor::Test {

// The rows of a data-driven test, each with its name and its values.
template <typename... Values>
class Rows
{
public:
    Rows() { QTest::addColumn<std::tuple<Values...>>("values"); }

    void operator()(const char* name, const Values&... values) const
    {
        (*this)(QTest::newRow(name), values...);
    }
    void operator()(QTestData& row, const Values&... values) const
    {
        row << std::tuple<Values...>(values...);
    }
};

// The values of the row that a test runs with.
template <typename... Values>
std::tuple<Values...> Row()
{
    using Tuple = std::tuple<Values...>;
    QFETCH(const Tuple, values);
    return values;
}

} // namespace Glyphor::Test
