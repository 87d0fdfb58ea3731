// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/report_functions.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "calc/input_checks.h"
#include "calc/report_units.h"
#include "text/columns.h"
#include "thermo/caloric_state.h"

namespace orva {

namespace {

constexpr std::size_t unitWidth = 14;

// Functions of a phase, counted from the slot of its volume.
constexpr std::size_t offsetV = 0;
constexpr std::size_t offsetH = 1;
constexpr std::size_t offsetS = 2;
constexpr std::size_t offsetG = 3;
constexpr std::size_t offsetU = 4;
constexpr std::size_t offsetA = 5;
constexpr std::size_t offsetEH = 6;
constexpr std::size_t offsetEU = 7;
constexpr std::size_t offsetCp = 8;
constexpr std::size_t offsetCv = 9;

struct FunctionRow {
    std::string_view label;
    UnitQuantity quantity;
    std::size_t offset;
    std::string_view separator;
};

constexpr FunctionRow functionRows[] = {
    {"Enthalpie        ", UnitQuantity::H, offsetH, " = "},
    {"Entropie         ", UnitQuantity::S, offsetS, " = "},
    {"Freie Enthalpie  ", UnitQuantity::G, offsetG, " ="},
    {"Innere Energie   ", UnitQuantity::U, offsetU, " ="},
    {"Freie Energie    ", UnitQuantity::A, offsetA, " ="},
    {"Exergie von H    ", UnitQuantity::E, offsetEH, " ="},
    {"Exergie von U    ", UnitQuantity::E, offsetEU, " ="},
    {"Wärmekapazität   ", UnitQuantity::Cp, offsetCp, " ="},
    {"Wärmekapazität   ", UnitQuantity::Cv, offsetCv, " ="},
};

struct GlobalRow {
    std::string_view label;
    double CaloricValues::*value;
    int unit; // 0 energy, 1 entropy
};

constexpr GlobalRow globalRows[] = {
    {"Enthalpie h       = ", &CaloricValues::h, 0},
    {"Entropie s        = ", &CaloricValues::s, 1},
    {"Freie Enthalpie g = ", &CaloricValues::g, 0},
    {"Innere Energie u  = ", &CaloricValues::u, 0},
    {"Freie Energie a   = ", &CaloricValues::f, 0},
    {"Exergie eH        = ", &CaloricValues::exergyH, 0},
    {"Exergie eU        = ", &CaloricValues::exergyU, 0},
    {"Wärmekapazität cp = ", &CaloricValues::cp, 1},
    {"Wärmekapazität cV = ", &CaloricValues::cv, 1},
};

// The printed digits are those of the text of the double, read back as a single.
std::string RoundTripText(const PointRun& run, double x) {
    const std::string text = General(x);
    return Str(static_cast<float>(std::strtod(text.c_str(), nullptr)), run.context.style);
}

void FillSlots(PointRun& run, std::size_t base, std::size_t soundSlot, double v,
               const CaloricValues& values) {
    auto& results = run.result.results;
    const double factor = run.context.options.energyFactor;
    results[base + offsetV] = run.context.options.volumeFactor * v;
    results[base + offsetH] = values.h * factor;
    results[base + offsetS] = values.s * factor;
    results[base + offsetG] = values.g * factor;
    results[base + offsetU] = values.u * factor;
    results[base + offsetA] = values.f * factor;
    results[base + offsetEH] = values.exergyH * factor;
    results[base + offsetEU] = values.exergyU * factor;
    results[base + offsetCp] = values.cp * factor;
    results[base + offsetCv] = values.cv * factor;
    results[soundSlot] = values.soundSpeed;
}

bool FillPhase(PointRun& run, std::size_t base, std::size_t soundSlot, double v,
               const AmbientState& ambient) {
    const CaloricResult state = CaloricState(run.context.model, run.T, run.p, v, ambient);
    if (state.failed) {
        ReportFailure(run, FailureNumber());
        return false;
    }
    FillSlots(run, base, soundSlot, v, state.values);
    ResultRecord& record = run.result.record;
    const double factor = run.context.options.energyFactor;
    // Kept on purpose: the record always says liquid, and holds the phase that was computed last.
    record.phase = " L ";
    record.h = static_cast<float>(state.values.h * factor);
    record.s = static_cast<float>(state.values.s * factor);
    record.g = static_cast<float>(state.values.g * factor);
    record.eH = static_cast<float>(state.values.exergyH * factor);
    record.eU = static_cast<float>(state.values.exergyU * factor);
    return true;
}

// The functions of the phases that exist into their slots.
bool FillFunctions(PointRun& run) {
    const AmbientState ambient =
        run.options.ambient != nullptr ? *run.options.ambient : EvaluateAmbientState(run.context.model);
    bool good = true;
    if (run.phases.hasL)
        good = FillPhase(run, slotVolumeL, slotSoundSpeedL, run.phases.vL, ambient);
    if (run.phases.hasV)
        good = FillPhase(run, slotVolumeV, slotSoundSpeedV, run.phases.vV, ambient) && good;
    return good;
}

void AppendRows(PointRun& run, std::string_view soundLabel) {
    if (!ShowsTexts(run))
        return;
    const auto& results = run.result.results;
    for (const FunctionRow& row : functionRows)
        AppendLine(run, std::string(row.label)
                            + FixedField(UnitText(row.quantity, run.context.options.unitBasis), unitWidth)
                            + std::string(row.separator)
                            + ValueFields(run, results[slotVolumeL + row.offset],
                                          results[slotVolumeV + row.offset]));
    AppendLine(run, FixedField(soundLabel, labelWidth) + FixedField("as/ (m/s)", unitWidth) + " ="
                        + ValueFields(run, results[slotSoundSpeedL], results[slotSoundSpeedV]));
    AppendLine(run, "");
}

bool ListsFunctions(int kind) {
    return (kind >= kindTRho && kind <= kindSaturationTemperature) || kind == kindVesselGlobal;
}

} // namespace

void AppendGlobalList(PointRun& run) {
    if (!ShowsTexts(run))
        return;
    const Options& options = run.context.options;
    const SaturationCaloricResult state = SaturationCaloric(run.context.model, run.T);
    const double y = run.y;
    const auto global = [&](const GlobalRow& row) {
        return (y * state.vapour.*row.value + (1 - y) * state.liquid.*row.value) * options.energyFactor;
    };
    if (state.failed || !std::all_of(std::begin(globalRows), std::end(globalRows), [&](const GlobalRow& row) {
            return FitsSingle(global(row));
        }))
        return;
    const bool molar = options.unitBasis == 0;
    const std::string energy = molar ? "kJ/kmol" : "kJ/kg";
    const std::string entropy = molar ? "kJ/(kmol K)" : "kJ/(kg K)";
    const std::string title =
        std::string(molar ? "molare" : "spezifische") + " globale Funktionen  z = y(V) z(V) + (1 - y(V) z(L)";
    const double v = y * run.phases.vV + (1 - y) * run.phases.vL;
    AppendLine(run, "");
    AppendLine(run, title);
    AppendLine(run, Line("=", CharacterCount(title)));
    AppendLine(run, "");
    AppendLine(run, "Dichte rho        = " + RoundTripText(run, run.context.model.substance.molarMass / v)
                        + "  kg/m^3");
    AppendLine(run, "Volumen v         = " + RoundTripText(run, v * options.volumeFactor) + "  "
                        + (molar ? "m^3/kmol" : "m^3/kg"));
    for (const GlobalRow& row : globalRows)
        AppendLine(run, std::string(row.label) + RoundTripText(run, global(row)) + "  "
                            + (row.unit == 0 ? energy : entropy));
}

void AppendFunctionRows(PointRun& run) {
    if (!FillFunctions(run) || !ShowsTexts(run))
        return;
    AppendLine(run, "");
    AppendVolumeRow(run);
    AppendRows(run, "Schallgeschwind.");
}

void AppendFunctionList(PointRun& run) {
    auto& results = run.result.results;
    if (!run.context.calculation.FunctionList || !ListsFunctions(run.result.kind))
        return;
    // The words of the record belong to the calculation itself.
    const ResultRecord kept = run.result.record;
    const PhaseVolumes shown = run.phases;
    run.T = results[slotT];
    run.p = results[slotP];
    const std::string rule = Line("*", 68);
    AppendLine(run, rule);
    AppendLine(run, "                    thermodynamische Funktionen");
    AppendLine(run, rule);
    run.phases = SolvedPhases(run);
    if (run.phases.failed) {
        ReportFailure(run, FailureNumber());
    } else if (FillFunctions(run)) {
        const Options& options = run.context.options;
        // Kept on purpose: the free energy of this list is g - p v, not that of the model.
        if (run.phases.hasL)
            results[slotVolumeL + offsetA] =
                results[slotVolumeL + offsetG] - options.energyFactor * run.p * run.phases.vL;
        if (run.phases.hasV)
            results[slotVolumeV + offsetA] =
                results[slotVolumeV + offsetG] - options.energyFactor * run.p * run.phases.vV;
        AppendLine(run, "");
        AppendRows(run, "Schallgeschw.");
    }
    run.phases = shown;
    run.result.record = kept;
}

} // namespace orva
