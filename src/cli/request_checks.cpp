// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/request_checks.h"

#include "calc/calc_batch.h"
#include "diagrams/catalogue.h"

namespace orva {

namespace {

// A value that the options of a point can give, and which calculations take it.
struct GivenValue {
    std::string_view option;
    bool (*given)(const PointOptions&);
    bool (*taken)(int kind);
};

constexpr bool TakesNone(int) {
    return false;
}
constexpr bool TakesTP(int kind) {
    return kind == kindTP;
}

constexpr GivenValue givenValues[] = {
    {"T", [](const PointOptions& p) { return p.T.has_value(); }, TakesTP},
    {"p", [](const PointOptions& p) { return p.p.has_value(); }, TakesTP},
    {"rho", [](const PointOptions& p) { return p.rho.has_value(); }, TakesNone},
    {"rho-liquid", [](const PointOptions& p) { return p.rhoLiquid.has_value(); }, TakesNone},
    {"mass", [](const PointOptions& p) { return p.mass.has_value(); }, TakesNone},
    {"volume", [](const PointOptions& p) { return p.volume.has_value(); }, TakesNone},
};

// The blocks and lists that a calculation can append to its report.
std::string CheckDisplay(const DisplayOptions& display, const std::string& kind) {
    if (display.extended != DisplayOptions().extended)
        return "option extended: only 1 is available for " + kind;
    if (display.functionList)
        return "option function-list is not available for " + kind;
    return {};
}

std::string CheckPoint(const PointOptions& point, const DisplayOptions& display) {
    const auto kind = [&point] { return "kind " + std::to_string(point.kind); };
    if (!IsKindAvailable(point.kind))
        return "calculation " + kind() + " is not available";
    if (point.assumeEquilibrium)
        return "option assume-equilibrium is not available for " + kind();
    if (point.method == "partial")
        return "option method: partial is not available for " + kind();
    if (point.liquidDensity || point.referenceDensity || point.referenceDensityProposal)
        return "options liquid-density and reference-density belong to the partial method, which is not "
               "available for "
               + kind();
    if (std::string error = CheckDisplay(display, kind()); !error.empty())
        return error;
    for (const GivenValue& value : givenValues) {
        const bool taken = value.taken(point.kind);
        if (taken != value.given(point))
            return kind() + (taken ? " needs option " : " does not take option ") + std::string(value.option);
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
    if (curve.v && !(*curve.v > 0))
        return "option v: a volume must be above 0 m^3/kmol";
    return {};
}

} // namespace

std::string CheckRequest(const Request& request) {
    if (request.command == Command::Point)
        return CheckPoint(request.point, request.context.display);
    if (request.command == Command::Curve)
        return CheckCurve(request.curve);
    return {};
}

} // namespace orva
