// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <limits>

#include "calc/calc_batch.h"
#include "thermo/phase_volumes.h"

namespace orva {

inline constexpr std::string_view lineEnd = "\r\n";

// One run of a point calculation on its way: what the driver, the kinds and the report blocks share.
struct PointRun {
    CalculationContext& context;
    PointResult& result;
    RunOptions options;
    double T = 0, p = 0;     // K, kPa: given or found
    double rho = 0;          // given density, kg/m^3
    double y = 0;            // share of vapour by amount where both phases exist
    bool endsAtOnce = false; // without the words on the given state
    PhaseVolumes phases{};
};

// All that is printed or kept is single precision in the end. False for what is no number.
inline bool FitsSingle(double x) {
    return std::abs(x) <= std::numeric_limits<float>::max();
}

// The row of the data series that the run is about.
const BatchRow& CurrentRow(const PointRun& run);

// Adds one line to the report, unless the report is suppressed.
void AppendLine(PointRun& run, std::string_view line);

// False where the run is about its numbers alone; no text is built then.
inline bool ShowsTexts(const PointRun& run) {
    return !run.options.suppressReport;
}

// Writes the text into the label, where texts are shown.
void ShowText(PointRun& run, ResultLabel& label, std::string_view text);

// The number by the mask; the second in general form where it is below 0.01 and the mask would show no
// digits. Empty where no texts are shown, and so are the labels below.
std::string Masked(const PointRun& run, double x, std::string_view mask);
std::string SmallOrMasked(const PointRun& run, double x, std::string_view mask);

// "T = 300.000 K", "p = 100.000 kPa", "rho = 2.4 kg/m^3": what the labels of the given values show.
std::string TemperatureLabel(const PointRun& run);
std::string PressureLabel(const PointRun& run);
std::string DensityLabel(const PointRun& run);

// Takes the solution of the cubic equation into the record of the diagnosis window. `rootIndex` is the count
// of its roots.
void FillEosState(PointRun& run, int rootIndex);

// Phase word and densities of the result record.
void RecordPhases(PointRun& run);

// Liquid and vapour stand at the first and the last of the volume roots.
void TakeSaturationRoots(PointRun& run);

// Phases and volumes of the cubic solved at T, p. Of a cold liquid rounding hides the volume there, while the
// search for the saturation has found it: then the phases of the run stay.
PhaseVolumes SolvedPhases(PointRun& run);

// Density of the liquid by the partial method: the rectilinear diameter through the reference point, given
// the density of the vapour, or the database function. 0 where there is none.
double PartialLiquidDensity(PointRun& run);

// The words that name the source of the liquid density above the density table.
std::string_view LiquidDensitySourceText(const PointRun& run);

} // namespace orva
