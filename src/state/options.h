// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace orva {

// Settings of the session that apply to all calculations and diagrams.
struct Options {
    bool batchMode = false;       // work through the data series instead of asking for one point
    std::int16_t unitBasis = 0;   // 0 molar, 1 by R, 2 by R T, 3 specific
    std::int16_t volumeBasis = 0; // 0 molar, 1 specific, 2 reduced
    double energyFactor = 1.0;    // molar energy to displayed energy
    double volumeFactor = 1.0;    // molar volume to displayed volume
    std::int16_t curvePoints = 300;
    bool curveTpRestricted = true; // only T above T(trip), p above p(trip)
    bool sCurveWithoutTieLine = false;
    bool partialCurveGasOnly = false;
    float pFactor = 1, TFactor = 1; // to reduced pressure and temperature
    std::string pUnit = "kPa", TUnit = "K", vUnit = "m^3/kmol";
    char listSeparator = ';';
};

} // namespace orva
