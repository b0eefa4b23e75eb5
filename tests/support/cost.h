#pragma once

#include <algorithm>
#include <ctime>
#include <limits>

namespace Glyphor::Test {

// The processor time of a call, in seconds: the least of some tries, which others disturbed least.
template <typename Call>
double Cost(Call call)
{
    double least = std::numeric_limits<double>::max();
    for (int tries = 0; tries < 3; ++tries) {
        const std::clock_t start = std::clock();
        call();
        least = std::min(least, double(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return least;
}

// Whether the cost of an input that doubles about doubles too. What takes a blink is not judged,
// and what seems to cost more is measured again, as the machine may have been busy.
template <typename Call>
bool IsLinear(Call call, int size)
{
    constexpr double blink = 0.03;
    for (int attempt = 0; attempt < 4; ++attempt) {
        const double small = Cost([&] { call(size); });
        const double large = Cost([&] { call(2 * size); });
        if (large < blink || large < 3 * small)
            return true;
    }
    return false;
}

} // namespace Glyphor::Test
