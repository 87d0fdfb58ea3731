// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/eos_diagnosis.h"

#include <algorithm>
#include <cmath>

#include "text/columns.h"
#include "thermo/cubic_equation.h"
#include "thermo/spinodal.h"

namespace orva {

namespace {

constexpr int threeRootCount = 3;
constexpr int heightOfThree = 8000; // twips
constexpr double sameRoot = 1e-4;   // relative; T stands in the record as a single

constexpr int branchPoints = 150, lobePoints = 120;
constexpr double nearCoVolume = 1.005; // where the curve begins, in co-volumes
constexpr double besideRoots = 3;      // factor that the window reaches beyond the roots, at most before them
constexpr double beforeShare = 0.5; // the same before three roots, as a share of their logarithmic distance
constexpr double behindShare = 0.3; // and behind them, with room for a name
constexpr double frameShare = 0.08; // of the logarithmic width, between the frame and the smallest root
constexpr double nameShare = 0.2;   // of the logarithmic width, behind a single root
constexpr double wholeLoop = 7;     // depth below the isobar, in heights above it, that is shown whole
constexpr double cutLoop = 3;       // and what is shown of a deeper one
constexpr double margin = 0.15;     // of the shown height, above and below the loop
constexpr double singleRootHeight = 2; // of the pressure, where there is no loop

struct SolvedRoots {
    int count = 0;
    std::array<double, 3> v{};
};

SolvedRoots SolveAt(SubstanceModel& model, double T, double p) {
    SetEosCoefficients(model, T);
    const CubicSolution solution = SolveEosCubic(model, T, p);
    return {solution.failed ? 0 : solution.rootCount, model.work.Roots};
}

bool SameRoots(const EosStateRecord& state, const SolvedRoots& solved) {
    const auto close = [](double a, double b) { return std::abs(a - b) <= sameRoot * std::abs(b); };
    if ((state.rootIndex == threeRootCount) != (solved.count == threeRootCount))
        return false;
    if (!close(state.v[0], solved.v[0]))
        return false;
    return solved.count != threeRootCount
           || (close(state.v[1], solved.v[1]) && close(state.v[2], solved.v[2]));
}

// The saturated state itself keeps its roots: there the two outer ones are phases in equilibrium.
SolvedRoots RootsOf(const EosStateRecord& state, SubstanceModel& model) {
    const SolvedRoots recorded{state.rootIndex, state.v};
    if ((state.hasL && state.hasV && state.rootIndex == threeRootCount) || !(state.pEos > 0))
        return recorded;
    const SolvedRoots solved = SolveAt(model, state.T, state.pEos);
    return solved.count == 0 || SameRoots(state, solved) ? recorded : solved;
}

// An undivided fluid has both flags; it is called as the verdict on the given state calls it.
bool IsLiquid(const EosStateRecord& state, const SubstanceModel& model) {
    return state.hasL && !(state.hasV && state.T > model.substance.Tc);
}

void NameThreeRoots(const EosStateRecord& state, std::array<DiagnosisLine, 3>& lines) {
    constexpr const char* metastable = "(metastabil)";
    const auto say = [](DiagnosisLine& line, bool stable, const char* words) {
        line.stability = stable ? words : metastable;
        line.kind = stable ? RootStability::Stable : RootStability::Metastable;
    };
    say(lines[0], state.hasL, "(stabil, L-Phase)");
    say(lines[2], state.hasV, "(stabil, V-Phase)");
    lines[1].stability = "(instabil)";
    lines[1].kind = RootStability::Unstable;
}

void WriteAreas(EosDiagnosis& diagnosis, SubstanceModel& model, NumberStyle style) {
    SetEosCoefficients(model, diagnosis.T);
    for (std::size_t i = 0; i < diagnosis.lines.size(); ++i)
        model.work.Roots[i] = diagnosis.lines[i].v;
    const AreaRatio areas = MaxwellAreaRatio(model, diagnosis.T, diagnosis.p);
    if (areas.failed)
        return;
    diagnosis.upperArea = areas.area1;
    diagnosis.lowerArea = areas.area2;
    const auto number = [style](double x) { return Str(static_cast<float>(x), style); };
    diagnosis.lblA_x = "(A(o) + A(u)) / (A(o) - A(u)) =" + number(areas.ratio);
    diagnosis.lblA_u = "A(u) =" + number(areas.area2) + " kJ/kmol";
    diagnosis.lblA_o = "A(o) =" + number(areas.area1) + " kJ/kmol";
}

std::string NameOf(const SubstanceModel& model, const NameTables& names) {
    const int eos = std::clamp<int>(model.selection.eos, 0, static_cast<int>(names.EosNames.size()) - 1);
    return std::string(Trim(names.EosNames.at(static_cast<std::size_t>(eos))));
}

// The part of the loop that makes a picture: all that is above the isobar, and of a stretched liquid no more
// than leaves that visible.
void FrameLoop(const EosDiagnosis& diagnosis, const SpinodalPoints& spinodal, IsothermPicture& picture) {
    const double top = std::max(spinodal.p[1], diagnosis.p);
    const double above = std::max(top - diagnosis.p, margin * std::abs(top));
    const double depth = diagnosis.p - spinodal.p[0];
    const double bottom = diagnosis.p - (depth <= wholeLoop * above ? depth : cutLoop * above);
    const double space = margin * (top - bottom);
    picture.pMax = top + space;
    picture.pMin = bottom - space;
}

// Around a single root, with the loop of the isotherm where there is one.
void FrameSingleRoot(const EosDiagnosis& diagnosis, const SpinodalPoints* spinodal,
                     IsothermPicture& picture) {
    picture.pMin = 0;
    picture.pMax = singleRootHeight * diagnosis.p;
    if (spinodal == nullptr)
        return;
    picture.pMax = std::max(picture.pMax, spinodal->p[1] * (1 + margin));
    picture.pMin = std::clamp(spinodal->p[0] * (1 + margin), -picture.pMax, 0.0);
}

// Roots far apart leave as much room beside them as roots close together.
void FrameVolumes(const EosDiagnosis& diagnosis, double b, IsothermPicture& picture) {
    const double first = diagnosis.lines[0].v;
    const double last = diagnosis.threeRoots ? diagnosis.lines[2].v : first;
    picture.vMin = b + (first - b) / besideRoots;
    if (!diagnosis.threeRoots) {
        picture.vMax = last * besideRoots;
        return;
    }
    const double span = last / first;
    picture.vMin = std::max(picture.vMin, first / std::pow(span, beforeShare));
    picture.vMax = last * std::pow(span, behindShare);
}

// Through every root, however steep the branch of a cold liquid is there.
void DrawBranches(const EosDiagnosis& diagnosis, const SubstanceModel& model, double from,
                  IsothermPicture& picture) {
    const auto draw = [&](double begin, double end, int count) {
        const std::vector<IsothermPoint> points = IsothermPoints(model, diagnosis.T, begin, end, count);
        picture.curve.insert(picture.curve.end(), points.begin(), points.end());
        return points;
    };
    draw(from, diagnosis.lines[0].v, branchPoints);
    std::size_t last = 0;
    if (diagnosis.threeRoots) {
        picture.lowerLobe = draw(diagnosis.lines[0].v, diagnosis.lines[1].v, lobePoints);
        picture.upperLobe = draw(diagnosis.lines[1].v, diagnosis.lines[2].v, lobePoints);
        last = 2;
    }
    draw(diagnosis.lines[last].v, picture.vMax, branchPoints);
}

} // namespace

EosDiagnosis DiagnoseEos(const EosStateRecord& state, SubstanceModel model, const NameTables& names,
                         NumberStyle style) {
    EosDiagnosis diagnosis;
    diagnosis.lblEOSType = NameOf(model, names);
    diagnosis.T = state.T;
    diagnosis.p = state.pEos;
    const SolvedRoots roots = RootsOf(state, model);
    diagnosis.lblixk = std::to_string(roots.count);
    diagnosis.threeRoots = roots.count == threeRootCount;
    if (roots.count == 0)
        return diagnosis;
    for (std::size_t i = 0; i < diagnosis.lines.size(); ++i) {
        DiagnosisLine& line = diagnosis.lines[i];
        line.visible = i == 0 || diagnosis.threeRoots;
        line.v = line.visible ? roots.v[i] : 0;
        if (line.visible)
            line.solution = "v(" + std::to_string(i + 1) + ") =" + Str(static_cast<float>(line.v), style);
    }
    if (!diagnosis.threeRoots) {
        diagnosis.lines[0].stability = IsLiquid(state, model) ? "(stabil, L-Phase)" : "(stabil, V-Phase)";
        return diagnosis;
    }
    diagnosis.windowHeight = heightOfThree;
    NameThreeRoots(state, diagnosis.lines);
    WriteAreas(diagnosis, model, style);
    return diagnosis;
}

std::vector<IsothermPoint> IsothermPoints(SubstanceModel model, double T, double vFrom, double vTo,
                                          int count) {
    std::vector<IsothermPoint> points;
    // The first evaluation brings the co-volume to T, which EosPressure compares with.
    SetEosCoefficients(model, T);
    if (!(vFrom > 0) || !(vTo > vFrom) || count < 2)
        return points;
    const double step = std::log(vTo / vFrom) / (count - 1);
    for (int i = 0; i < count; ++i) {
        const double v = i == count - 1 ? vTo : vFrom * std::exp(i * step);
        const PressureResult pressure = EosPressure(model, T, v);
        if (!pressure.failed)
            points.push_back({v, pressure.p});
    }
    return points;
}

IsothermPicture DrawIsotherm(const EosDiagnosis& diagnosis, const SubstanceModel& model) {
    IsothermPicture picture;
    SubstanceModel own = model;
    SetEosCoefficients(own, diagnosis.T);
    const double b = own.eos.B;
    const double first = diagnosis.lines[0].v;
    if (!(first > b) || !(diagnosis.p > 0))
        return picture;
    const SpinodalPoints spinodal = SpinodalVolumes(own, diagnosis.T);
    const bool hasLoop = !spinodal.failed && diagnosis.T < model.substance.Tc;
    if (diagnosis.threeRoots)
        FrameLoop(diagnosis, spinodal, picture);
    else
        FrameSingleRoot(diagnosis, hasLoop ? &spinodal : nullptr, picture);
    FrameVolumes(diagnosis, b, picture);
    if (!diagnosis.threeRoots && hasLoop) {
        picture.vMin = std::min(picture.vMin, spinodal.v[0]);
        picture.vMax = std::max(
            {picture.vMax, spinodal.v[1] * besideRoots, first * std::pow(first / picture.vMin, nameShare)});
    }
    picture.vMin = std::min(picture.vMin, first / std::pow(picture.vMax / first, frameShare));
    DrawBranches(diagnosis, model, std::min(b * nearCoVolume, first), picture);
    return picture;
}

} // namespace orva
