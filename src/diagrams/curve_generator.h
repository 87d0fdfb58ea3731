// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "diagrams/chosen_diagram.h"
#include "diagrams/curve_points.h"
#include "diagrams/tie_line.h"
#include "state/options.h"
#include "state/substance_model.h"
#include "text/number_format.h"

namespace orva {

// How the next curve is wanted, beside its T, p, v.
struct CurveMode {
    double vapourFraction = 0;          // of a line inside the two-phase region
    bool tieLineMode = false;           // the tie line of the current T or p
    bool coexistenceMode = false;       // the coexistence command is running
    bool sCurveMode = false;            // only the part inside the two-phase region
    double limitLow = 0, limitHigh = 0; // kPa or K, of a diagram of two functions
    double pMin = 0, pMax = 0;          // window of the pressure in display units, for lines of equilibrium
    NumberStyle style;                  // of the numbers in the text of the outcome
};

// How a curve ended. The words for it are with the diagram window.
enum CurveStatus : std::int16_t {
    curveGood = 0,
    curveBelowTriplePoint = 2,
    curveNoCriticalDensity = 3,
    curveTieLineImpossible = 4,
    curveEndedEarly = 5,
    curveOutsideWindow = 10,
    curveFault = -1,
    curveNoProcessLine = -2
};

struct CurveOutcome {
    std::int16_t status = curveGood;
    std::string resultText;
    TieLine tie;                        // end points for the current T or p
    float pSatCurve = 0, TSatCurve = 0; // by the vapour-pressure equation; kPa at T, K at p
};

// Turns a diagram type, its window and the parameters T (K), p (kPa), v (m^3/kmol) into a point list. The
// generator lays a uniform grid of Options.curvePoints steps over the window and evaluates the models at each
// grid point. A grid point where a model fails is skipped. A window without extent leaves `curve`, status and
// text untouched; a type without a family is a fault with a text. Nothing is shown to the user. Writes the
// working set of the model and the unit factors.
void GenerateCurve(SubstanceModel& model, Options& options, const CurveMode& mode, DiagramSpec& spec,
                   CurvePoints& curve, double T, double p, double v, CurveOutcome& outcome);

} // namespace orva
