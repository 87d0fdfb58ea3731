// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/request_checks.h"

#include "calc/calc_batch.h"
#include "diagrams/catalogue.h"

namespace orva {

namespace {

// Which values a calculation needs and which it can take besides.
struct KindValues {
    int kind;
    std::string_view needed;
    std::string_view optional; // of the data row, where an equation gives nothing
};

// T, p, r density, l density of the liquid, m mass, V volume.
constexpr KindValues kindValues[] = {
    {kindTRho, "Tr", ""},
    {kindTRhoLiquid, "Tl", ""},
    {kindTP, "Tp", ""},
    {kindSaturationPressure, "T", "p"},
    {kindSaturationTemperature, "p", "T"},
    {kindVaporisationAtT, "T", "p"},
    {kindVaporisationAtP, "p", "T"},
    {kindFunctions, "Tp", ""},
    {kindVesselGlobal, "TmV", ""},
    {kindVesselPartial, "TmV", ""},
    {kindPRho, "pr", ""},
};

// Every kind that is not listed takes T alone.
KindValues ValuesOf(int kind) {
    for (const KindValues& row : kindValues)
        if (row.kind == kind)
            return row;
    return {kind, "T", ""};
}

struct GivenValue {
    char letter;
    std::string_view option;
    bool (*given)(const PointOptions&);
};

constexpr GivenValue givenValues[] = {
    {'T', "T", [](const PointOptions& p) { return p.T.has_value(); }},
    {'p', "p", [](const PointOptions& p) { return p.p.has_value(); }},
    {'r', "rho", [](const PointOptions& p) { return p.rho.has_value(); }},
    {'l', "rho-liquid", [](const PointOptions& p) { return p.rhoLiquid.has_value(); }},
    {'m', "mass", [](const PointOptions& p) { return p.mass.has_value(); }},
    {'V', "volume", [](const PointOptions& p) { return p.volume.has_value(); }},
};

bool Holds(std::string_view letters, char letter) {
    return letters.find(letter) != std::string_view::npos;
}

bool IsDatabaseFunction(int kind) {
    return kind >= kindLiquidDensity;
}

// The blocks and lists that a calculation can append to its report.
std::string CheckDisplay(const PointOptions& point, const DisplayOptions& display, const std::string& kind) {
    const int k = point.kind;
    const bool extends = k != kindVaporisationAtT && k != kindVaporisationAtP && k != kindVirialComparison
                         && !IsDatabaseFunction(k);
    if (display.extended != DisplayOptions().extended && !extends)
        return "option extended: only 1 is available for " + kind;
    const bool lists = k <= kindSaturationTemperature || k == kindVesselGlobal;
    if (display.functionList && !lists)
        return "option function-list is not available for " + kind;
    return {};
}

// Where the partial method, or its densities, take part.
std::string CheckMethod(const PointOptions& point, const std::string& kind) {
    if (point.assumeEquilibrium && point.kind != kindTP)
        return "option assume-equilibrium is not available for " + kind;
    const bool partialOnly = point.kind == kindVesselPartial || point.assumeEquilibrium;
    if (point.method == "global" && partialOnly)
        return "option method: this calculation is partial";
    if (point.method == "partial" && point.kind == kindVesselGlobal)
        return "option method: kind 9 is global, kind 10 partial";
    const bool densities = point.assumeEquilibrium || point.kind == kindVesselPartial
                           || (point.kind >= kindSaturationPressure && point.kind <= kindVaporisationAtP);
    if ((point.liquidDensity || point.referenceDensity || point.referenceDensityProposal) && !densities)
        return "options liquid-density and reference-density belong to the partial method, which is not "
               "available for "
               + kind;
    return {};
}

std::string CheckPoint(const PointOptions& point, const DisplayOptions& display) {
    const std::string kind = "kind " + std::to_string(point.kind);
    if (!IsKindAvailable(point.kind) || point.kind == kindPolytrope)
        return "calculation " + kind + " is not available";
    if (std::string error = CheckMethod(point, kind); !error.empty())
        return error;
    if (std::string error = CheckDisplay(point, display, kind); !error.empty())
        return error;
    const KindValues values = ValuesOf(point.kind);
    for (const GivenValue& value : givenValues) {
        const bool given = value.given(point);
        if (!given && Holds(values.needed, value.letter))
            return kind + " needs option " + std::string(value.option);
        if (given && !Holds(values.needed, value.letter) && !Holds(values.optional, value.letter))
            return kind + " does not take option " + std::string(value.option);
    }
    return {};
}

std::string CheckCurve(const CurveOptions& curve) {
    if (FindDiagram(curve.type) == nullptr)
        return "diagram type " + std::to_string(curve.type) + " is not available";
    if (curve.window) {
        const auto& [xMin, xMax, yMin, yMax] = *curve.window;
        if (!(static_cast<float>(xMin) < static_cast<float>(xMax)
              && static_cast<float>(yMin) < static_cast<float>(yMax)))
            return "option window: each lower limit must be below its upper one (xMin,xMax,yMin,yMax)";
    }
    for (const double T : curve.T)
        if (!(T > 0))
            return "option T: a temperature must be above 0 K";
    if (curve.p && !(*curve.p > 0))
        return "option p: a pressure must be above 0 kPa";
    if (curve.vapourFraction && curve.mode != "coexistence")
        return "option vapour-fraction belongs to the mode coexistence";
    if (curve.vapourFraction && !(*curve.vapourFraction >= 0 && *curve.vapourFraction <= 1))
        return "option vapour-fraction: a vapour fraction lies between 0 and 1";
    if (curve.limits && FindDiagram(curve.type)->curveCode != "yy")
        return "option limits belongs to the diagrams of two functions";
    if (curve.limits)
        for (const double limit : *curve.limits)
            if (!(limit > 0))
                return "option limits: both limits must be above 0";
    if (curve.v && !(*curve.v > 0))
        return "option v: a volume must be above 0 m^3/kmol";
    return {};
}

// What the window refuses as an input.
std::string CheckAboveZero(const PointOptions& point) {
    const struct {
        const std::optional<double>& value;
        std::string_view option;
    } values[] = {{point.T, "T"}, {point.p, "p"}, {point.mass, "mass"}, {point.volume, "volume"}};
    for (const auto& [value, option] : values)
        if (value && !(*value > 0))
            return "option " + std::string(option) + ": the value must be above 0";
    return {};
}

std::string CheckVessel(const PointOptions& point) {
    const bool densities = point.liquidDensity || point.referenceDensity || point.referenceDensityProposal;
    if (point.method == "global" && densities)
        return "options liquid-density and reference-density belong to the partial method";
    return CheckAboveZero(point);
}

} // namespace

std::string CheckRequest(const Request& request) {
    if (request.command == Command::Point)
        return CheckPoint(request.point, request.context.display);
    if (request.command == Command::Vessel)
        return CheckVessel(request.point);
    if (request.command == Command::Inverse)
        return CheckAboveZero(request.point);
    if (request.command == Command::Curve)
        return CheckCurve(request.curve);
    return {};
}

} // namespace orva
