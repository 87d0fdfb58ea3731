// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <compare>
#include <optional>
#include <string>
#include <vector>

namespace orva {

enum class Command : unsigned char { List, Find, Show, Models, Point, Vessel, Inverse, Curve, Atlas, Run };

// The choices of the model window; what is not given stays as the window presets it.
struct ModelOptions {
    std::optional<int> eos;
    std::optional<std::string> vaporPressureCode; // "000" for none
    std::optional<int> vaporization;
    std::optional<int> cp;
    std::optional<double> watsonExponent;
    std::optional<bool> eosPriority;
    std::optional<std::array<double, 3>> virial; // b0, b1, b2 of the row entered by hand

    auto operator<=>(const ModelOptions&) const = default;
};

// Normalisation of the caloric functions and the ambient state: K, kPa, kJ/kmol, kJ/(kmol K).
struct ReferenceOptions {
    std::optional<int> kind;
    std::optional<std::array<double, 2>> state;       // T0, p0
    std::optional<std::array<double, 2>> values;      // h0, s0
    std::optional<std::array<double, 2>> environment; // Tenv, penv

    auto operator<=>(const ReferenceOptions&) const = default;
};

struct DisplayOptions {
    int unitBasis = 0;
    int volumeBasis = 0;
    int extended = 1;
    bool functionList = false;

    auto operator<=>(const DisplayOptions&) const = default;
};

// All that settles the session before a point or a curve is asked for. Requests with the same context share
// the loaded substance and its accepted models.
struct ContextOptions {
    std::string substance;
    ModelOptions models;
    ReferenceOptions reference;
    DisplayOptions display;

    auto operator<=>(const ContextOptions&) const = default;
};

// The given values of a point: K, kPa, kg/m^3, kg, m^3.
struct PointOptions {
    int kind = 0;
    std::optional<double> T, p, rho, rhoLiquid, mass, volume;
    std::optional<std::string> method;        // "global", "partial"
    std::optional<std::string> liquidDensity; // "database", "benson"
    std::optional<std::array<double, 4>> referenceDensity;
    bool referenceDensityProposal = false;
    bool assumeEquilibrium = false;
};

// The inversion of a function: the value it has to take, in display units, and where the search starts.
struct InverseOptions {
    std::string functionName; // "v", "h", "s", "g", "u", "a", "eH", "eU"
    int function = 0;         // its number in this order
    double value = 0;
    bool solveForT = true; // else for p
    int phase = 0;         // 0 vapour, 1 liquid
};

struct CurveOptions {
    int type = 0;
    std::vector<double> T;                       // K; more than one draws several curves
    std::optional<double> p, v;                  // kPa, m^3/kmol
    std::optional<std::array<double, 4>> window; // xMin, xMax, yMin, yMax in display units
    std::optional<int> points;
    std::string mode = "curve";
    std::optional<double> vapourFraction;        // of a line of the coexistence mode
    std::optional<std::array<double, 2>> limits; // of p in kPa or T in K, of a diagram of two functions
    std::optional<bool> tpRestricted, sCurveWithoutTieLine, partialGasOnly;
    std::string svgFile, pngFile, pdfFile;
};

// One request, whether it came from the command line or as a line of JSON.
struct Request {
    Command command = Command::List;
    std::string database; // empty: the one of the installation folder
    std::string text;     // what `find` looks for
    ContextOptions context;
    PointOptions point; // of `vessel` and `inverse` too
    InverseOptions inverse;
    CurveOptions curve;
    bool textFormat = false;
    std::string outFolder;    // of `atlas`
    std::string requestsFile; // of `run`
};

} // namespace orva
