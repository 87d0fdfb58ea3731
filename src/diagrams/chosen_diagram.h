// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace orva {

// What is held constant along a curve.
enum CurveKindNumber : std::int16_t {
    curveIsotherm = 1,
    curveIsobar = 2,
    curveIsochor = 3,
    curveProjection = 5,
    curveInversion = 6,
    curveFunctionOfT = 7
};

// The diagram in force. The window is in display units.
struct DiagramSpec {
    std::int16_t type = 0; // row of the catalogue, 0 none
    float xMin = 0, yMin = 0, xMax = 0, yMax = 0;
    std::string xTitle, yTitle;
    std::string subTitle; // third line of the heading: ", " and the model
    std::int16_t curveKind = 0;
    std::string curveCode;        // "pv", "yT", "yp", "yv", "pT", "yy"
    float dbTMin = 0, dbTMax = 0; // range of a database function, K

    std::string headingText; // first line: the substance
    std::string typeTitle;   // second line: title of the type
    std::string heading;     // headingText, " Diagrammtyp:  " and typeTitle
};

} // namespace orva
