// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/report_blocks.h"

#include <cmath>

#include "state/constants.h"
#include "text/columns.h"
#include "thermo/cubic_equation.h"
#include "thermo/virial_equation.h"

namespace orva {

namespace {

constexpr std::size_t valueWidth = 20;

bool HasCubicTrailer(const PointRun& run) {
    const ModelSelection& selection = run.context.model.selection;
    const int kind = run.result.kind;
    const bool listed = (kind >= kindTRho && kind <= kindPRho && kind != kindPolytrope) || kind >= 25;
    const bool fromEos =
        (kind != kindVaporisationAtT && kind != kindVaporisationAtP) || selection.vaporization == 7;
    return !selection.nonCubic && run.T > missingValue && listed && fromEos;
}

void AppendCubicParameters(PointRun& run) {
    // What was computed last may have left the parameters of another temperature.
    SetEosCoefficients(run.context.model, run.T);
    const EosParameters& eos = run.context.model.eos;
    const auto row = static_cast<std::size_t>(run.context.model.selection.eos);
    const std::string title = "Parameter der generalisierten kub. EOS ("
                              + std::string(Trim(run.context.names.EosNames.at(row))) + "):";
    AppendLine(run, "");
    AppendLine(run, title);
    AppendLine(run, Line("=", CharacterCount(title)));
    AppendLine(run, "  A =" + Str(eos.A, run.context.style));
    AppendLine(run, "  B =" + Str(eos.B, run.context.style));
    AppendLine(run, "  C =" + Str(eos.C, run.context.style));
    AppendLine(run, "  D =" + Str(eos.D, run.context.style));
}

void AppendVirialCoefficient(PointRun& run) {
    SubstanceModel& model = run.context.model;
    const auto B = static_cast<float>(VirialCoefficientB(model, model.selection.eos, run.T));
    if (!std::isfinite(B))
        return;
    AppendLine(run, "");
    AppendLine(run, "Virialkoeffizient:");
    AppendLine(run, "  B =" + Str(B, run.context.style) + " m^3/kmol");
}

} // namespace

std::string ValueFields(const PointRun& run, double liquid, double vapour) {
    const NumberStyle style = run.context.style;
    const std::string valL = run.phases.hasL ? General(static_cast<float>(liquid), style) : std::string();
    const std::string valV = run.phases.hasV ? General(static_cast<float>(vapour), style) : std::string();
    return FixedField(valL, valueWidth) + valV;
}

void AppendDensityTable(PointRun& run) {
    const Options& options = run.context.options;
    const PhaseVolumes& phases = run.phases;
    const double displayedL = options.volumeFactor * phases.vL;
    const double displayedV = options.volumeFactor * phases.vV;
    run.result.results[slotVolumeV] = displayedV;
    run.result.results[slotVolumeL] = displayedL;
    if (!ShowsTexts(run))
        return;
    AppendLine(run, FixedField("Dichte", labelWidth)
                        + "rho/ (kg/m^3)  = " + ValueFields(run, phases.rhoL, phases.rhoV));
    AppendVolumeRow(run);
}

void AppendVolumeRow(PointRun& run) {
    const auto& results = run.result.results;
    AppendLine(run, FixedField("Volumen", labelWidth) + "v/ (" + run.context.options.vUnit
                        + ")  = " + ValueFields(run, results[slotVolumeL], results[slotVolumeV]));
}

void AppendParameterTrailer(PointRun& run) {
    if (!ShowsTexts(run))
        return;
    const int kind = run.result.kind;
    const bool cubicKind = !run.context.model.selection.nonCubic;
    if (HasCubicTrailer(run))
        AppendCubicParameters(run);
    else if (!cubicKind && ((kind >= kindTRho && kind <= kindVesselPartial) || kind == kindPRho))
        AppendVirialCoefficient(run);
}

} // namespace orva
