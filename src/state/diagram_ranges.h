// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace orva {

// Default windows of the diagrams in display units, filled from the substance in force.
struct DiagramRanges {
    float pMax = 0, pMin = 0.001F;
    float TMax = 0, TMin = 0;
    float vMax = 0, vMin = 0;
    float rhoMax = 0, rhoMin = 0;
    float pvMax = 0, pvMin = 0;
    float vSmallMax = 0, vSmallMin = 0;
    float lnPMax = 0, lnPMin = 0;
    float invTMax = 0, invTMin = 0;
    float dlnMax = 0, dlnMin = 0;
    float hVapMax = 0, hVapMin = 0;
    float TwideMax = 0;
    float deltaMax = 0, deltaMin = 0;
    float hMax = 0, hMin = 0, sMax = 0, sMin = 0;
    float cpMax = 0, cpMin = 0;
    float dsMin = 0, dsMax = 0, dhMin = 0, dhMax = 0;
};

// The curve parameters a diagram is drawn for: K, kPa, m^3/kmol.
struct CurveRequest {
    double curveT = 298.15;
    double curveP = 0;
    double curveV = 0;
};

} // namespace orva
