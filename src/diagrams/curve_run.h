// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cmath>
#include <optional>

#include "diagrams/curve_generator.h"
#include "thermo/caloric_state.h"

namespace orva {

struct DiagramRow;

// One run of the curve generator, as the family of the diagram type sees it. T and p are working variables.
struct CurveRun {
    SubstanceModel& model;
    Options& options;
    const CurveMode& mode;
    DiagramSpec& spec;
    CurvePoints& curve;
    CurveOutcome& outcome;
    const DiagramRow& row;
    double T = 0, p = 0, v = 0;
    double stepX = 0, stepY = 0;
    bool windowEmpty = true; // no point so far lay inside the window
    bool givenUp = false;    // without a start there is no curve, and no window would show it
    std::optional<AmbientState> knownAmbient = std::nullopt;

    // Adds a point and tests it against the window, limits excluded. A value beyond single precision is
    // dropped.
    void Add(double x, double y, double z);
    // The same, tested in y alone, as the caloric families do.
    void AddTestingY(double x, double y, double z);
    // Adds a point that takes no part in the window test.
    void AddOutsideTest(double x, double y, double z);
    bool IsInWindow(double x, double y) const;

    bool HasTieLine() const;

    // A cubic equation below its critical temperature.
    bool HasLoop() const;

    // Brings the factor of the energies to T; only energies divided by R T depend on it.
    void UseTemperature(double temperature);

    // The ambient state of the exergies, evaluated once a curve.
    const AmbientState& Ambient();
};

// Where an isobar jumps over its tie line: the liquid goes on a little below T(LV), and what has been passed
// once lies where no grid comes near.
inline constexpr double besideTieLine = 1e-4; // K
inline constexpr double passed = -1e10;       // K or kPa

// What happens below the triple point: the loop ends, or the curve goes on under a warning.
enum class TripRule : std::uint8_t {
    Stop,           // ends where only real states are wanted, but not for the ideal gas
    StopAnyEquation // the same for every equation
};

// False where the loop ends at `value`, a T against T(trip) or a p against p(trip).
bool PassesTriplePoint(CurveRun& run, double value, double limit, TripRule rule);

// True where `curveTpRestricted` leaves out what lies below the triple point; nothing is reported.
bool IsBelowTriplePoint(const CurveRun& run, double value, double limit);

// Most steps of a grid: a multiple of those in the window, and never more than the finest grid of the most
// points that a curve may have. A narrow window far from the ends of the curve would keep the user waiting.
inline constexpr int mostGridSteps = 140000;
inline constexpr int mostWindows = 100;
inline int MostSteps(const CurveRun& run) {
    return std::min(mostGridSteps, mostWindows * run.options.curvePoints);
}

// Walks x from `first` to `last` by repeated addition of `step`, as every grid of the generator does; the
// sums, not the products, are the abscissae. A negative step walks down. `visit` returns false to end. Of too
// many steps the last are left out.
template<typename Visit>
void WalkGrid(const CurveRun& run, double first, double last, double step, Visit visit) {
    const int most = MostSteps(run);
    int count = 0;
    for (double x = first; (step > 0 ? x <= last : x >= last) && count <= most; x += step, ++count)
        if (!visit(x))
            return;
}

// The same for a grid that ends in the window and begins elsewhere, at the critical point: of too many steps
// the first are left out.
template<typename Visit>
void WalkIntoWindow(const CurveRun& run, double first, double last, double step, Visit visit) {
    const double longest = MostSteps(run) * step;
    WalkGrid(run, std::abs(last - first) > std::abs(longest) ? last - longest : first, last, step, visit);
}

// The same, with the last value exactly on `last`: the grid reaches `reach` of a step further, and what has
// passed the end is set back to it.
inline constexpr double clampReach = 0.9;
template<typename Visit>
void WalkClampedGrid(const CurveRun& run, double first, double last, double step, Visit visit,
                     double reach = clampReach) {
    const auto clamped = [&](double x) { return (step > 0 ? x > last : x < last) ? last : x; };
    WalkGrid(run, first, last + reach * step, step, [&](double x) { return visit(clamped(x)); });
}

} // namespace orva
