// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/report_vaporisation.h"

#include <algorithm>
#include <cmath>

#include "calc/report_blocks.h"
#include "calc/report_units.h"
#include "state/constants.h"
#include "text/columns.h"

namespace orva {

namespace {

constexpr std::size_t ruleWidth = 70;
constexpr float twoDecimalsBelow = 1000;
constexpr int comparedWithin = 5; // K out of the range of the database function

// The name with the blanks of its field.
const std::string& EosNameField(const SubstanceModel& model, const NameTables& names) {
    return names.EosNames.at(static_cast<std::size_t>(std::max<int>(model.selection.eos, 0)));
}

std::string ValueText(const PointRun& run, double h) {
    const bool small = static_cast<float>(h) < twoDecimalsBelow;
    return Format(h, small ? "##0.00" : "##########.0", run.context.style);
}

void ShowFoundCoordinate(PointRun& run) {
    ResultLabel& label = run.result.co2;
    if (run.result.kind == kindVaporisationAtP)
        label.text = " T(LV) = " + Format(run.T, "####.000 K", run.context.style);
    else if (run.p > missingValue)
        label.text = " p(LV) = " + SmallOrMasked(run, run.p, "####0.000") + " kPa";
}

void AppendFactors(PointRun& run, int way, const VaporisationResult& found) {
    const NumberStyle style = run.context.style;
    AppendLine(run, "");
    AppendLine(run, "es wurden folgende Kompressibilitätsfaktoren z benutzt:");
    AppendLine(run,
               Spaces(13) + "z(L) = " + Str(found.zL, style) + Spaces(16) + "z(V) = " + Str(found.zV, style));
    AppendLine(run, "");
    AppendLine(run, "z(V) von " + EosNameField(run.context.model, run.context.names));
    AppendLine(run, way == vaporisationBenson
                        ? "rho(L) für z(L)-Berechnung nach MATHIAS/CAILLETET/BENSON"
                        : "rho(L) für z(L)-Berechnung aus Datenbankfunktion rho(L) = Fu(T)");
}

void AppendComparison(PointRun& run, std::string_view unit) {
    const VaporisationResult database =
        VaporisationEnthalpy(run.context.model, vaporisationDatabase,
                             run.context.model.selection.vaporPressure, VaporisationRequestOf(run));
    if (database.failed || std::abs(database.outside) >= comparedWithin)
        return;
    const double h = database.h * run.context.options.energyFactor;
    AppendLine(run, "");
    AppendLine(run, "Vergleich mit Datenbankfunktion: " + std::string(unit) + " = " + ValueText(run, h));
}

} // namespace

std::string MethodText(int vaporisationModel, const SubstanceModel& model, const NameTables& names,
                       NumberStyle style) {
    switch (vaporisationModel) {
    case vaporisationDatabase:
        return "delta(LV)h = Fu(T) (Datenbank-Parameter)";
    case vaporisationChen:
        return "CHEN-Korrelation";
    case vaporisationCarruthKobayashi:
        return "CARRUTH/KOBAYASHI-Korrelation";
    case vaporisationWatson:
        return "WATSON-Korrelation, n =" + Str(model.selection.watsonExponent, style);
    case vaporisationLiquidDensity:
    case vaporisationBenson:
        return " aktueller Dampfdruckgleichung";
    case vaporisationCubic:
        return EosNameField(model, names);
    default:
        return "";
    }
}

void AppendVaporizationReport(PointRun& run, const VaporisationResult& found) {
    if (found.failed) {
        AppendLine(run, "kein Ergebnis erhalten");
        run.result.failed = true;
        return;
    }
    if (!ShowsTexts(run))
        return;
    ShowFoundCoordinate(run);
    const Options& options = run.context.options;
    const NumberStyle style = run.context.style;
    const int way = run.context.model.selection.vaporization;
    const double h = found.h * options.energyFactor;
    const std::string_view unitH = UnitText(UnitQuantity::VaporisationH, options.unitBasis);
    const std::string_view unitS = UnitText(UnitQuantity::VaporisationS, options.unitBasis);
    AppendLine(run,
               "Verdampfungsenthalpie aus " + MethodText(way, run.context.model, run.context.names, style));
    AppendLine(run, Line(softHyphen, ruleWidth));
    AppendLine(run, Spaces(20) + std::string(unitH) + " = " + ValueText(run, h));
    AppendLine(run, "");
    AppendLine(run, "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:");
    AppendLine(run, std::string(unitS) + " = " + Str(static_cast<float>(h / run.T), style) + ")");
    AppendLine(run, "");
    if (way == vaporisationLiquidDensity || way == vaporisationBenson)
        AppendFactors(run, way, found);
    if (way != vaporisationDatabase)
        AppendComparison(run, unitH);
}

} // namespace orva
