// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/dvopar/least_squares.h"

#include <cmath>

namespace orva::dvopar {
namespace {

const Values wideLow = {-10, -10};
const Values wideHigh = {10, 10};

TEST(MinimiseSquares, FindsTheBottomOfACurvedValley) {
    // Rosenbrock, Comput. J. 3 (1960) 175: minimum 0 at (1, 1).
    const Residuals valley = [](const Values& x) { return Values{10 * (x[1] - x[0] * x[0]), 1 - x[0]}; };
    const LeastSquaresResult result = MinimiseSquares(valley, {-1.2, 1}, wideLow, wideHigh);
    EXPECT_FALSE(result.failed);
    EXPECT_NEAR(result.x[0], 1, 1e-6);
    EXPECT_NEAR(result.x[1], 1, 1e-6);
    EXPECT_NEAR(result.sum, 0, 1e-10);
}

TEST(MinimiseSquares, StaysWithinItsBoxAndMinimisesAlongTheBound) {
    const Residuals line = [](const Values& x) { return Values{x[0] + x[1] - 4, x[0] - 3, x[1] - 2}; };
    // On x0 = 1 the minimum of (x1 - 3)^2 + (x1 - 2)^2 lies at 2.5.
    const LeastSquaresResult result = MinimiseSquares(line, {0, 0}, {-10, -10}, {1, 10});
    EXPECT_EQ(result.x[0], 1);
    EXPECT_NEAR(result.x[1], 2.5, 1e-6);
}

TEST(MinimiseSquares, FailsWhereTheStartCannotBeEvaluated) {
    EXPECT_TRUE(MinimiseSquares([](const Values&) { return Values{}; }, {0, 0}, wideLow, wideHigh).failed);
    EXPECT_TRUE(MinimiseSquares([](const Values&) { return Values{std::nan("")}; }, {0, 0}, wideLow, wideHigh)
                    .failed);
}

TEST(MinimiseSquares, KeepsAwayFromStatesThatCannotBeEvaluated) {
    const Residuals half = [](const Values& x) { return x[0] > 2 ? Values{} : Values{std::exp(-x[0])}; };
    const LeastSquaresResult result = MinimiseSquares(half, {0}, {-10}, {10});
    EXPECT_FALSE(result.failed);
    EXPECT_LE(result.x[0], 2);
    EXPECT_LT(result.sum, 1);
}

TEST(MinimiseSquares, LeavesAParameterWithoutInfluenceWhereItIs) {
    const LeastSquaresResult result =
        MinimiseSquares([](const Values& x) { return Values{x[0] - 1}; }, {0, 5}, wideLow, wideHigh);
    EXPECT_FALSE(result.failed);
    EXPECT_EQ(result.x[1], 5);
}

} // namespace
} // namespace orva::dvopar
