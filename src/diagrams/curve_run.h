// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagrams/curve_generator.h"

namespace orva {

// One run of the curve generator, as the family of the diagram type sees it. T and p are working variables.
struct CurveRun {
    SubstanceModel& model;
    Options& options;
    const CurveMode& mode;
    DiagramSpec& spec;
    CurvePoints& curve;
    CurveOutcome& outcome;
    double T = 0, p = 0, v = 0;
    double stepX = 0, stepY = 0;
    bool windowEmpty = true; // no point so far lay inside the window

    // Adds a point and tests it against the window, limits excluded. A value beyond single precision is
    // dropped.
    void Add(double x, double y, double z);
    // Adds a point that takes no part in the window test.
    void AddOutsideTest(double x, double y, double z);
    bool IsInWindow(double x, double y) const;
};

// Walks x from `first` to `last` by repeated addition of `step`, as every grid of the generator does; the
// sums, not the products, are the abscissae. A negative step walks down.
template<typename Visit> void WalkGrid(double first, double last, double step, Visit visit) {
    for (double x = first; step > 0 ? x <= last : x >= last; x += step)
        visit(x);
}

} // namespace orva
