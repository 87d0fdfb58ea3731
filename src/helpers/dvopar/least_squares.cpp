// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/dvopar/least_squares.h"

#include <algorithm>
#include <cmath>

namespace orva::dvopar {

namespace {

constexpr int iterations = 60;
constexpr int dampings = 12; // trials of one iteration
constexpr double firstDamping = 1e-3;
constexpr double dampingFactor = 10;
constexpr double difference = 1e-5;
constexpr double converged = 1e-9; // relative gain of the sum of squares
constexpr double smallestPivot = 1e-300;

double SumOfSquares(const Values& r) {
    double sum = 0;
    for (const double value : r)
        sum += value * value;
    return std::isfinite(sum) ? sum : HUGE_VAL;
}

double SumAt(const Residuals& residuals, const Values& x) {
    const Values r = residuals(x);
    return r.empty() ? HUGE_VAL : SumOfSquares(r);
}

// Slopes of all residuals by parameter; empty if a neighbour cannot be evaluated.
std::vector<Values> Jacobian(const Residuals& residuals, const Values& x, const Values& low,
                             const Values& high) {
    std::vector<Values> columns;
    for (std::size_t j = 0; j < x.size(); ++j) {
        Values left = x;
        Values right = x;
        left[j] = std::max(x[j] - difference, low[j]);
        right[j] = std::min(x[j] + difference, high[j]);
        const Values rLeft = residuals(left);
        Values column = residuals(right);
        if (rLeft.empty() || column.size() != rLeft.size())
            return {};
        for (std::size_t i = 0; i < column.size(); ++i)
            column[i] = (column[i] - rLeft[i]) / (right[j] - left[j]);
        columns.push_back(std::move(column));
    }
    return columns;
}

// Solution of the small symmetric system by elimination with column pivots; empty if it is singular.
Values SolveLinear(std::vector<Values> matrix, Values right) {
    const std::size_t n = right.size();
    for (std::size_t k = 0; k < n; ++k) {
        std::size_t pivot = k;
        for (std::size_t i = k + 1; i < n; ++i)
            if (std::abs(matrix[i][k]) > std::abs(matrix[pivot][k]))
                pivot = i;
        std::swap(matrix[k], matrix[pivot]);
        std::swap(right[k], right[pivot]);
        if (!(std::abs(matrix[k][k]) > smallestPivot))
            return {};
        for (std::size_t i = k + 1; i < n; ++i) {
            const double factor = matrix[i][k] / matrix[k][k];
            for (std::size_t j = k; j < n; ++j)
                matrix[i][j] -= factor * matrix[k][j];
            right[i] -= factor * right[k];
        }
    }
    for (std::size_t k = n; k-- > 0;) {
        for (std::size_t j = k + 1; j < n; ++j)
            right[k] -= matrix[k][j] * right[j];
        right[k] /= matrix[k][k];
    }
    return right;
}

struct NormalEquations {
    std::vector<Values> matrix;
    Values right;

    NormalEquations(const std::vector<Values>& columns, const Values& r) {
        const std::size_t n = columns.size();
        matrix.assign(n, Values(n));
        right.assign(n, 0);
        for (std::size_t j = 0; j < n; ++j) {
            for (std::size_t i = 0; i < r.size(); ++i)
                right[j] -= columns[j][i] * r[i];
            for (std::size_t k = 0; k < n; ++k)
                for (std::size_t i = 0; i < r.size(); ++i)
                    matrix[j][k] += columns[j][i] * columns[k][i];
        }
    }

    // A parameter that stands at a bound and is drawn beyond it stays there.
    void Hold(const Values& x, const Values& low, const Values& high) {
        for (std::size_t j = 0; j < x.size(); ++j) {
            if (!((x[j] >= high[j] && right[j] > 0) || (x[j] <= low[j] && right[j] < 0)))
                continue;
            for (std::size_t k = 0; k < x.size(); ++k)
                matrix[j][k] = matrix[k][j] = 0;
            matrix[j][j] = 1;
            right[j] = 0;
        }
    }

    Values Step(double damping) const {
        std::vector<Values> damped = matrix;
        for (std::size_t j = 0; j < damped.size(); ++j)
            damped[j][j] *= 1 + damping;
        return SolveLinear(std::move(damped), right);
    }
};

} // namespace

LeastSquaresResult MinimiseSquares(const Residuals& residuals, Values start, const Values& low,
                                   const Values& high) {
    LeastSquaresResult best{std::move(start), 0, false};
    Values r = residuals(best.x);
    best.sum = SumOfSquares(r);
    best.failed = r.empty() || !std::isfinite(best.sum);
    double damping = firstDamping;
    for (int i = 0; i < iterations && !best.failed; ++i) {
        const std::vector<Values> columns = Jacobian(residuals, best.x, low, high);
        if (columns.empty())
            break;
        NormalEquations equations(columns, r);
        equations.Hold(best.x, low, high);
        double sum = HUGE_VAL;
        Values trial;
        for (int k = 0; k < dampings && !(sum < best.sum); ++k, damping *= dampingFactor) {
            const Values step = equations.Step(damping);
            trial = best.x;
            for (std::size_t j = 0; j < step.size(); ++j)
                trial[j] = std::clamp(best.x[j] + step[j], low[j], high[j]);
            sum = step.empty() ? HUGE_VAL : SumAt(residuals, trial);
        }
        if (!(sum < best.sum))
            break;
        damping /= dampingFactor * dampingFactor;
        const double gain = best.sum - sum;
        best.x = trial;
        best.sum = sum;
        r = residuals(best.x);
        if (gain <= converged * sum)
            break;
    }
    return best;
}

} // namespace orva::dvopar
