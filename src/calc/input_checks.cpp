// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/input_checks.h"

#include <cmath>

#include "text/columns.h"

namespace orva {

namespace {

bool Refuse(PointRun& run, ResultLabel& label, std::string_view text) {
    label.text = text;
    label.colour = TextColour::Red;
    run.result.failed = true;
    return false;
}

// Infinity is no given value either: a data series that was read or computed may hold one.
bool IsGiven(double value) {
    return value >= missingValue && std::isfinite(value);
}

// The heat capacities of single phases are asked for below the triple point too.
bool WarnsAtTriplePoint(int kind) {
    return kind != kindIdealGasCp && kind != kindSolidCp && kind != kindSolidDensity;
}

} // namespace

bool TakeTemperature(PointRun& run, ResultLabel& label) {
    const double T = CurrentRow(run).T;
    if (!IsGiven(T))
        return Refuse(run, label, "kein T in diesem Datensatz");
    const SubstanceModel& model = run.context.model;
    if (static_cast<float>(T) < model.substance.Ttrip && run.options.warn && !model.selection.nonCubic
        && WarnsAtTriplePoint(run.result.kind))
        run.result.messages.push_back(
            {"Hinweis", "T ist kleiner als Tripelpunkt-Temperatur", MessageIcon::Information});
    run.T = T;
    run.result.results[slotT] = T;
    return true;
}

bool TakePressure(PointRun& run, ResultLabel& label) {
    const double p = CurrentRow(run).p;
    if (!IsGiven(p))
        return Refuse(run, label, "kein p in diesem Datensatz");
    run.p = p;
    run.result.results[slotP] = p;
    return true;
}

bool TakeDensity(PointRun& run, ResultLabel& label) {
    const double rho = CurrentRow(run).rhoV;
    if (!IsGiven(rho))
        return Refuse(run, label, "kein rho in diesem Datensatz");
    run.rho = rho;
    run.result.results[slotRhoGlobal] = rho;
    run.result.results[slotVGlobal] =
        run.context.model.substance.molarMass * run.context.options.volumeFactor / rho;
    return true;
}

bool TakeLiquidDensity(PointRun& run, ResultLabel& label) {
    const double rho = CurrentRow(run).rhoL;
    if (!IsGiven(rho))
        return Refuse(run, label, "kein rho in diesem Datensatz");
    run.rho = rho;
    return true;
}

void ReportFailure(PointRun& run, std::string_view message) {
    run.result.failed = true;
    run.result.reportColour = TextColour::Red;
    if (!ShowsTexts(run))
        return;
    AppendLine(run, Spaces(25) + "Meldung von Sub CalcBatch:" + std::string(message));
}

std::string FailureNumber(int number) {
    return " (E" + std::to_string(number) + ")";
}

} // namespace orva
